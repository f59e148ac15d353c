#!/usr/bin/env bash
# The library, built on a client's own platform package, installed, and used by a host that knows no other platform.
. "$(dirname "$0")/packaging.sh"

second=$scratch/second
step platform-configured cmake -S "$here/second_platform" -B "$second/platform-build" "${cheap[@]}" \
    -DCMAKE_INSTALL_PREFIX="$second/platform"
step platform-built cmake --build "$second/platform-build" --target install
step library-configured cmake -S "$source" -B "$second/library-build" "${cheap[@]}" \
    -DORDERPARAM_PLATFORM=SecondPlatform -DORDERPARAM_WERROR=OFF -DCMAKE_PREFIX_PATH="$second/platform" -DCMAKE_INSTALL_PREFIX="$second/library"
step library-built cmake --build "$second/library-build" --target install

if ninja -C "$second/library-build" -t deps | grep -F "$source/reference/"; then
    fail "the library includes the reference platform"
fi
built "$here/second_host" "-DCMAKE_PREFIX_PATH=$second/library;$second/platform"
says second_host "$here/expected/second_host.txt" "$scratch/builds/second_host/second_host"
libraries=$(ldd "$scratch/builds/second_host/second_host")
[[ $libraries == *"$second/platform/"*SecondPlatform* ]] || fail "the client's platform is not loaded"
[[ $libraries != *orderparam_reference* ]] || fail "the reference platform is loaded"
finish "The library stands on another platform."
