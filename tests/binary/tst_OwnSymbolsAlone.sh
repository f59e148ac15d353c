#!/usr/bin/env bash
# The library exports its classes and nothing else, the reference platform what stands in the platform's namespaces;
# both carry a version. Usage: tst_OwnSymbolsAlone.sh LIBRARY REFERENCE
set -euo pipefail

library=$1
reference=$2
failures=0

fail() {
    printf 'FAIL: %s\n' "$*"
    failures=$((failures + 1))
}

exported() {
    nm -D --defined-only "$1" | awk '{ print $3 }'
}

# own NAMES FILE: every symbol of FILE belongs to one of NAMES, given as the mangled names alternate; there are some.
own() {
    local symbols others
    symbols=$(exported "$2")
    [[ -n $symbols ]] || fail "$2 exports nothing"
    others=$(grep -vE "^_Z(T[VIS]N|(Thn[0-9]+_)?NK?)($1)" <<< "$symbols") || return 0
    fail "$(basename "$2") exports symbols of others: $(head -n 5 <<< "$others" | c++filt)"
}

own '2TC[0-9]+C(OrderParamBaseTable|GlobalOrderParamTable|CodeOrderParamTable|StopLossOrderParamTable|BaseTaskParamWidget|HpfBasketTaskParamWidget|CreditParamTable)' \
    "$library"
own '2TC|2WQ|10luawrapper|5utils|9reference|9ttservice' "$reference"

for file in "$library" "$reference"; do
    name=$(basename "$file")
    soname=$(readelf -d "$file" | sed -n 's/.*SONAME.*\[\(.*\)\]/\1/p')
    [[ $soname == "${name%%.so*}.so.0" ]] || fail "$name has the soname '$soname'"
done

[[ $failures == 0 ]] || { echo "$failures checks failed"; exit 1; }
echo "Both libraries export their own symbols alone."
