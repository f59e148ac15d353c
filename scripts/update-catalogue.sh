#!/usr/bin/env bash
# Writes docs/catalogue.md anew: every cell that tables offer straight after construction.

. "$(dirname "$(readlink -f "$0")")/common.sh"

prepare_environment
build_preset release orderparam-replay
listing=$(mktemp "${TMPDIR:-/tmp}/orderparam-catalogue.XXXXXX")
trap 'rm -f "$listing"' EXIT
cmake "-DREPLAY=build/release/bin/orderparam-replay" "-DOUTPUT=$listing" -P cmake/CatalogueDocument.cmake ||
    fail "the catalogue cannot be written"
cp "$listing" docs/catalogue.md
echo "docs/catalogue.md is new."
