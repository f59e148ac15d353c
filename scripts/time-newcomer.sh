#!/usr/bin/env bash
# How long a newcomer waits: clones what is committed into a scratch folder and types the one command, with an empty
# compiler cache and again with a full one. Without a display the panel is the tour's pictures. Wants a quiet machine.

. "$(dirname "$(readlink -f "$0")")/common.sh"

scratch=$(mktemp -d "${TMPDIR:-/tmp}/orderparam-newcomer.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
export CCACHE_DIR=$scratch/ccache
unset DISPLAY WAYLAND_DISPLAY

# newcomer TITLE: from the clone to the panel, in seconds.
newcomer() {
    local start=$SECONDS pictures
    rm -rf "$scratch/clone"
    git clone -q "$project_root" "$scratch/clone"
    (cd "$scratch/clone" && ./run.sh) > "$scratch/log" 2>&1 || { tail -n 20 "$scratch/log"; fail "./run.sh failed"; }
    pictures=$(find "$scratch/clone/build/release/tour" -name '*.png' | wc -l)
    [[ $pictures -gt 0 ]] || fail "./run.sh showed nothing"
    [[ -z $(git -C "$scratch/clone" status --porcelain) ]] || fail "./run.sh leaves files in the tree"
    printf '%s: %d s, %d pictures\n' "$1" $((SECONDS - start)) "$pictures"
}

newcomer "first time"
newcomer "again, with the compiler's cache"
