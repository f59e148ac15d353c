#!/usr/bin/env bash
# Times the panel beside its peers, in the release build.

usage() {
    cat <<'USAGE'
Usage: benchmarks/run.sh [OPTION]... [-- BENCHMARK-ARGUMENT...]

  --preset NAME   what to build and time: release (default) or another preset
  --no-install    install nothing, take what is there
  --help          this text

Arguments after -- go to the benchmark program, for example: -- --benchmark_format=json
USAGE
}

. "$(dirname "$(readlink -f "$0")")/../scripts/common.sh"

preset=release
install=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --preset) preset=$(argument_of "$1" $# "${2:-}"); shift ;;
        --no-install) install=no ;;
        --) shift; break ;;
        *) fail "unknown option $1 (benchmarks/run.sh --help lists them)" ;;
    esac
    shift
done

[[ $install == no ]] || ensure_packages "${build_packages[@]}"
prepare_environment
build_preset "$preset" bench_panel
QT_QPA_PLATFORM=offscreen step "timing the panel" "build/$preset/bin/bench_panel" "$@"
