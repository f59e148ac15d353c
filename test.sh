#!/usr/bin/env bash
# From a clone to tested: installs what is missing, builds, runs every test on Qt's offscreen platform.

usage() {
    cat <<'USAGE'
Usage: ./test.sh [OPTION]... [-- CTEST-ARGUMENT...]

  --preset NAME   what to build and test: dev (default), release, asan or coverage
  --no-install    install nothing, take what is there
  --help          this text

Arguments after -- go to ctest, for example: ./test.sh -- -R tst_PriceTypes
USAGE
}

. "$(dirname "$(readlink -f "$0")")/scripts/common.sh"

preset=dev
install=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --preset) preset=$(argument_of "$1" $# "${2:-}"); shift ;;
        --no-install) install=no ;;
        --) shift; break ;;
        *) fail "unknown option $1 (./test.sh --help lists them)" ;;
    esac
    shift
done

[[ $install == no ]] || ensure_packages "${build_packages[@]}" "${test_packages[@]}"
prepare_environment
build_preset "$preset"
step "testing $preset" ctest --preset "$preset" --parallel "$(nproc)" "$@"
