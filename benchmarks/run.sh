#!/usr/bin/env bash
# Measures the panel beside its peers, in the release build, and tells which goals are met.

usage() {
    cat <<'USAGE'
Usage: benchmarks/run.sh [OPTION]...

Prints what each contender costs beside the native form, then one table: goal, measured, met or not. All figures go into
build/<preset>/benchmarks.json.

  --runs N        measure everything N times: the table shows each run, the medians are judged
  --preset NAME   what to build and measure: release (default) or another preset
  --strict        exit status 3 when a goal is not met
  --chart         draw docs/pictures/benchmarks.svg anew
  --no-install    install nothing, take what is there
  --help          this text
USAGE
}

. "$(dirname "$(readlink -f "$0")")/../scripts/common.sh"

preset=release
install=yes
strict=no
runs=1
chart=()
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --preset) preset=$(argument_of "$1" $# "${2:-}"); shift ;;
        --runs) runs=$(argument_of "$1" $# "${2:-}"); shift ;;
        --strict) strict=yes ;;
        --chart) chart=(--chart docs/pictures/benchmarks.svg) ;;
        --no-install) install=no ;;
        *) fail "unknown option $1 (benchmarks/run.sh --help lists them)" ;;
    esac
    shift
done
[[ $runs =~ ^[1-9][0-9]?$ ]] || fail "--runs wants a number from 1 to 99, not '$runs'"

[[ $install == no ]] || ensure_packages "${build_packages[@]}"
prepare_environment
build_preset "$preset" benchmark_programs

programs=build/$preset/bin
export QT_QPA_PLATFORM=offscreen
unset QT_SCALE_FACTOR

# run_into LOG COMMAND...: shows what the command said only when it fails.
run_into() {
    local log=$1
    shift
    "$@" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

# measure RESULT PROGRAM [ARGUMENT]...: one program's figures, in the folder of the run.
measure() {
    local result=$1 program=$2
    shift 2
    rm -f "$folder/$result.json"
    step "run $run of $runs: $result" run_into "$folder/$result.log" "$programs/$program" \
        --benchmark_out="$folder/$result.json" --benchmark_out_format=json "$@"
}

folders=()
for ((run = 1; run <= runs; run++)); do
    folder=build/$preset/benchmarks/run-$run
    mkdir -p "$folder"
    folders+=("$folder")
    measure panel bench_panel
    QT_SCALE_FACTOR=2 measure panel-ratio-2 bench_panel
    measure panel-style-sheet bench_panel --style-sheet
    measure crowd bench_crowd
    measure texts bench_parameter_strings
    measure dialogs bench_dialogs
done

status=0
"$programs/bench_report" "${chart[@]}" "build/$preset/benchmarks.json" "${folders[@]}" || status=$?
[[ $status == 0 || $status == 3 ]] || fail "the report failed with status $status"
[[ $strict == no ]] || exit "$status"
