#!/usr/bin/env bash
# Branch coverage of the library by the whole test suite. Branches that only an exception takes are left out: the
# compiler adds one to nearly every call.

usage() {
    cat <<'USAGE'
Usage: scripts/coverage.sh [--report-only]

  --report-only   takes the figures of the tests that have run, builds and runs nothing
  --help          this text

Fails below 95 % of the branches of OrderParamTable_mini/ (its platform declarations hold no code). The pages stand in
build/coverage/report/index.html.
USAGE
}

. "$(dirname "$(readlink -f "$0")")/common.sh"

least=95
run=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --report-only) run=no ;;
        *) fail "unknown option $1 (scripts/coverage.sh --help lists them)" ;;
    esac
    shift
done

ensure_packages "${build_packages[@]}" gcovr
prepare_environment
folder=build/coverage
if [[ $run == yes ]]; then
    build_preset coverage
    find "$folder" -name '*.gcda' -delete # counts of programs that are no more, or of sources that have changed
    step "testing coverage" ctest --preset coverage --parallel "$(nproc)" --label-exclude 'long|valgrind'
fi

mkdir -p "$folder/report"
step "at least $least % of the branches" gcovr --root "$project_root" \
    --filter "$project_root/OrderParamTable_mini/" --exclude "$project_root/OrderParamTable_mini/platform/" \
    --exclude-throw-branches --branches --fail-under-branch "$least" \
    --txt - --html-details "$folder/report/index.html" "$folder/OrderParamTable_mini"
echo "The pages are in $project_root/$folder/report/index.html"
