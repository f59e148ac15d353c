#!/usr/bin/env bash
# check_costs.sh counts|instructions PANEL_COSTS COMPARE_COSTS BASELINE FOLDER: measures our costs and compares them with
# the baseline. The baseline doctored by a tenth must be found out, else the guard guards nothing.
set -euo pipefail

kind=$1
program=$2
compare=$3
baseline=$4
folder=$5
sources=$(cd "$(dirname "$0")/../.." && pwd)
mkdir -p "$folder"

# Painting and copying choose their code by what the processor has; the baseline is that of one with AVX2.
if [[ $kind == instructions ]] && ! grep -qw avx2 /proc/cpuinfo; then
    echo "Skipped: the baseline is that of a processor with AVX2"
    exit 0
fi

if [[ $kind == instructions ]]; then
    bash "$sources/benchmarks/instructions.sh" "$program" "$folder/parts" >"$folder/measured.txt"
else
    "$program" >"$folder/measured.txt"
fi
"$compare" "$baseline" "$folder/measured.txt"

awk '/ (allocations|instructions) = / && !done { $NF = int($NF / 1.1); done = 1 } { print }' \
    "$folder/measured.txt" >"$folder/doctored.txt"
if "$compare" "$folder/doctored.txt" "$folder/measured.txt" >"$folder/doctored.log"; then
    echo "a baseline doctored by a tenth was taken for true" >&2
    exit 1
fi
