#!/usr/bin/env bash
# Renews the baselines that ctest compares our costs with: counts, and instructions in the dev and release presets.

usage() {
    cat <<'USAGE'
Usage: benchmarks/update-baseline.sh [OPTION]...

  --preset NAME   renew for this preset alone: dev or release
  --no-install    install nothing, take what is there
  --help          this text

Look at the difference before you commit it: a cost that has risen wants its reason in the commit message.
USAGE
}

. "$(dirname "$(readlink -f "$0")")/../scripts/common.sh"

presets=(dev release)
install=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --preset) presets=("$(argument_of "$1" $# "${2:-}")"); shift ;;
        --no-install) install=no ;;
        *) fail "unknown option $1 (benchmarks/update-baseline.sh --help lists them)" ;;
    esac
    shift
done

[[ $install == no ]] || ensure_packages "${build_packages[@]}"
prepare_environment
export QT_QPA_PLATFORM=offscreen TZ=Asia/Shanghai LANG=C.UTF-8
baselines=tests/benchmarks/baseline
mkdir -p "$baselines"
counts=
for preset in "${presets[@]}"; do
    build_preset "$preset" panel_costs
    program=build/$preset/bin/panel_costs
    "$program" >"$baselines/counts.txt"
    [[ -z $counts || $counts == "$(<"$baselines/counts.txt")" ]] || fail "the presets count differently; one baseline is for all"
    counts=$(<"$baselines/counts.txt")
    bash benchmarks/instructions.sh "$program" "build/$preset/instructions" >"$baselines/instructions-$preset.txt"
done
