#!/usr/bin/env bash
# write_symbols.sh LIBRARY BASELINE: writes what the library exports of its own classes, as abidw tells it. Without debug
# information, so that every build type answers the same.
set -euo pipefail

library=$1
baseline=$2
folder=$(dirname "$(readlink -f "$0")")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

strip --strip-debug -o "$scratch/library.so" "$library"
abidw --no-architecture --no-corpus-path --no-elf-needed --suppressions "$folder/own-symbols.abignore" \
    --out-file "$baseline" "$scratch/library.so"
