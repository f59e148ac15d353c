#!/usr/bin/env bash
# instructions.sh PANEL_COSTS FOLDER: prints the instructions that each operation of panel_costs takes, counted by
# callgrind. FOLDER takes its files.
set -euo pipefail

program=$1
folder=$2
rm -rf "$folder"
mkdir -p "$folder"
valgrind --quiet --tool=callgrind --instr-atstart=no --callgrind-out-file="$folder/part" "$program" \
    >"$folder/counts.txt" 2>"$folder/log.txt" || { cat "$folder/log.txt" >&2; exit 1; }

# shellcheck disable=SC2016
find "$folder" -name 'part.*' -print0 | sort -zV | xargs -0 awk '
    /^desc: Trigger: Client Request: / { name = substr($0, 32) }
    /^totals: / && name != "" { cost[name] = $2; name = "" }
    END { for (name in cost) print name " instructions = " cost[name] }' | sort
