#!/usr/bin/env bash
# The tree as a folder of a client's build: configured, and the client's own source compiled. What would be linked then is
# what the other tests link.
. "$(dirname "$0")/packaging.sh"

client=$scratch/builds/subdirectory
step subdirectory-configured cmake -S "$here/subdirectory_client" -B "$client" "${cheap[@]}" \
    "-DORDERPARAM_SOURCE=$source"
step subdirectory-built ninja -C "$client" "CMakeFiles/client.dir$source/examples/embed/main.cpp.o"
finish "The tree can be a folder of a client's build."
