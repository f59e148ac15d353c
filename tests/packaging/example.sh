#!/usr/bin/env bash
# example.sh SCRATCH SETTINGS NAME: an example, built from the installed package alone, says what its host should hear.
. "$(dirname "$0")/packaging.sh"
name=$3

built "$source/examples/$name" "-DCMAKE_PREFIX_PATH=$prefix"
says "$name" "$here/expected/$name.txt" "$scratch/builds/$name/$name" --quit
lines=$(grep -c . "$source/examples/$name/main.cpp")
[[ $lines -le 80 ]] || fail "an example of $lines lines is none"
finish "$name is built from the installed package."
