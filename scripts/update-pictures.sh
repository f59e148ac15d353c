#!/usr/bin/env bash
# Renders the pictures that the documents show anew: panels from the tour, the folders from their arrows.

. "$(dirname "$(readlink -f "$0")")/common.sh"

# document's picture | the tour's
pictures=(
    "panel-dark.png|order-stock-algorithm-expanded-dark-2.00.png"
    "panel-light.png|order-stock-algorithm-expanded-light-2.00.png"
)

# document's picture | the walk's, without its number
walked=(
    "window-dark.png|en/*-expanded.png"
    "window-light.png|zh_CN/*-light.png"
    "cell-menu.png|en/*-cell-menu.png"
)

ensure_packages graphviz optipng
tour=$(mktemp -d "${TMPDIR:-/tmp}/orderparam-tour.XXXXXX")
trap 'rm -rf "$tour"' EXIT
step "rendering the tour" ./run.sh --tour "$tour" "$@"
for row in "${pictures[@]}"; do
    cp "$tour/${row#*|}" "docs/pictures/${row%|*}" || fail "the tour has no picture ${row#*|}"
done

step "walking through the window" env ORDERPARAM_WALK_PICTURES="$tour/walk" ./test.sh -- -R '^tst_Walk$'
for row in "${walked[@]}"; do
    # shellcheck disable=SC2086 # the number of a picture is the pattern's to find
    cp "$tour"/walk/${row#*|} "docs/pictures/${row%|*}" || fail "the walk has no picture ${row#*|}"
done

# Every panel that docs/panels.md shows, in the default theme.
mkdir -p docs/pictures/panels
rm -f docs/pictures/panels/*.png
grep -o 'pictures/panels/[a-z0-9-]*\.png' docs/panels.md | sort -u | while read -r picture; do
    name=$(basename "$picture" .png)
    cp "$tour/$name-dark-1.00.png" "docs/$picture" || fail "the tour has no picture $name-dark-1.00.png"
done
step "making the pictures small" optipng -quiet -o2 docs/pictures/*.png docs/pictures/panels/*.png

cmake -P cmake/FolderPicture.cmake | dot -Tsvg >docs/pictures/folders.svg
echo "The pictures in docs/pictures are new."
