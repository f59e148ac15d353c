#!/usr/bin/env bash
# Writes the baseline of exported symbols anew, from the dev preset. The slots of tests/binary/slots.txt are typed by
# hand; no tool writes them.

. "$(dirname "$(readlink -f "$0")")/common.sh"

ensure_packages "${build_packages[@]}" abigail-tools binutils
prepare_environment
build_preset dev OrderParamTable_mini
step "listing the symbols" tests/binary/write_symbols.sh build/dev/lib/libOrderParamTable_mini.so tests/binary/symbols.abi
git --no-pager diff --stat -- tests/binary/symbols.abi
