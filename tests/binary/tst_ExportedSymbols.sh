#!/usr/bin/env bash
# The exported symbols of the library are those of the checked-in baseline; and the comparison sees each kind of
# difference. Usage: tst_ExportedSymbols.sh LIBRARY SCRATCH-FOLDER
set -euo pipefail

library=$1
scratch=$2
folder=$(dirname "$(readlink -f "$0")")
baseline=$folder/symbols.abi
failures=0

fail() {
    printf 'FAIL: %s\n' "$*"
    failures=$((failures + 1))
}

# A symbol that came or went is a difference; how long a virtual table is, is tst_VirtualSlots' to tell.
same_symbols() {
    abidiff --no-architecture "$1" "$2"
}

rm -rf "$scratch"
mkdir -p "$scratch"
"$folder/write_symbols.sh" "$library" "$scratch/built.abi"

count=$(grep -c '<elf-symbol ' "$baseline") || true
built=$(grep -c '<elf-symbol ' "$scratch/built.abi") || true
[[ $built == "$count" ]] || fail "the library exports $built symbols of its classes, the baseline has $count"
same_symbols "$baseline" "$scratch/built.abi" \
    || fail "the exported symbols differ (meant so? scripts/update-binary-baseline.sh writes the baseline anew)"

# doctored TITLE SED-EXPRESSION: a baseline changed in that way differs from the library.
doctored() {
    sed "$2" "$baseline" > "$scratch/doctored.abi"
    ! cmp -s "$baseline" "$scratch/doctored.abi" || fail "$1: nothing was changed"
    ! same_symbols "$scratch/doctored.abi" "$scratch/built.abi" >/dev/null || fail "$1: not seen"
}

doctored "an operation that the baseline lacks" "/name='_ZN2TC20COrderParamBaseTable7setFlagE/d"
doctored "an operation that the library lacks" "s/20COrderParamBaseTable7setFlagE/20COrderParamBaseTable7setFlakE/"
doctored "an operation with other arguments" "s/\(20COrderParamBaseTable13setFixedPriceE\)d/\1f/"
doctored "a virtual table that the baseline lacks" "/name='_ZTVN2TC17CCreditParamTableE'/d"

rm -rf "$scratch"
[[ $failures == 0 ]] || { echo "$failures checks failed"; exit 1; }
echo "$count exported symbols are those of the baseline."
