#!/usr/bin/env bash
# Renders the pictures that the documents show anew, from the tour.

. "$(dirname "$(readlink -f "$0")")/common.sh"

# document's picture | the tour's
pictures=(
    "panel-dark.png|order-stock-algorithm-expanded-dark-2.00.png"
    "panel-light.png|order-stock-algorithm-expanded-light-2.00.png"
    "workbench.png|window-zh-dark-1.00.png"
)

tour=$(mktemp -d "${TMPDIR:-/tmp}/orderparam-tour.XXXXXX")
trap 'rm -rf "$tour"' EXIT
step "rendering the tour" ./run.sh --tour "$tour" "$@"
for row in "${pictures[@]}"; do
    cp "$tour/${row#*|}" "docs/pictures/${row%|*}" || fail "the tour has no picture ${row#*|}"
done
echo "The pictures in docs/pictures are new."
