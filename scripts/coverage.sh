#!/usr/bin/env bash
# Branch coverage of the library by the whole test suite. Counted are the branches of the source, each side of a
# condition and each label of a switch; what only an exception takes has none.

usage() {
    cat <<'USAGE'
Usage: scripts/coverage.sh [--report-only]

  --report-only   takes the counts of the tests that have run, builds and runs nothing
  --help          this text

Prints the figures of every file of OrderParamTable_mini/ (the platform declarations hold no code), the branches that no
test takes, and the total; fails below 95 %. The pages stand in build/coverage/report/index.html.
USAGE
}

. "$(dirname "$(readlink -f "$0")")/common.sh"

least=95
folder=$project_root/build/coverage
profiles=$folder/profiles
library=$folder/lib/libOrderParamTable_mini.so
foreign="^$folder/|/platform/|^/usr/"

# Everything that ran writes its counts into a few files, which add up by themselves.
run_tests() {
    rm -rf "$profiles"
    LLVM_PROFILE_FILE="$profiles/%4m.profraw" \
        ctest --preset coverage --parallel "$(nproc)" --label-exclude 'long|valgrind'
}

merge_counts() {
    find "$profiles" -name '*.profraw' -print0 | xargs -0 llvm-profdata merge --sparse -o "$profiles/merged.profdata"
}

# The branches as lines "FILE LINE COUNT", counts of a line's branches in the order of the source.
branches() {
    llvm-cov export --format=lcov --instr-profile "$profiles/merged.profdata" "$library" \
        --ignore-filename-regex "$foreign" \
        | awk -F '[:,]' -v root="$project_root/" '
            $1 == "SF" { file = substr($0, 4); sub(root, "", file) }
            $1 == "BRDA" { print file, $2, $5 == "-" ? 0 : $5 }'
}

# Reads lines of branches(): a row a file, the branches not taken, the total; fails below the least share.
report() {
    awk -v least="$least" '
        $1 !~ /^OrderParamTable_mini\// { next }
        { all[$1]++; total++ }
        $3 > 0 { taken[$1]++; reached++ }
        $3 == 0 { missing[$1] = missing[$1] (missing[$1] == "" ? "" : " ") $2 }
        END {
            sorted = "sort"
            for (file in all)
                printf "%-76s %4d of %4d %4d %%  %s\n", file, taken[file], all[file], 100 * taken[file] / all[file],
                    missing[file] == "" ? "" : "not taken, by line: " missing[file] | sorted
            close(sorted)
            printf "%d of %d branches taken: %.1f %%\n", reached, total, total ? 100 * reached / total : 0
            exit total == 0 || 100 * reached < least * total
        }'
}

write_pages() {
    llvm-cov show --format=html --show-branches=count --instr-profile "$profiles/merged.profdata" "$library" \
        --ignore-filename-regex "$foreign" --output-dir "$folder/report"
}

run=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --report-only) run=no ;;
        *) fail "unknown option $1 (scripts/coverage.sh --help lists them)" ;;
    esac
    shift
done

ensure_packages "${build_packages[@]}" clang llvm
prepare_environment
if [[ $run == yes ]]; then
    build_preset coverage
    step "testing coverage" run_tests
fi
step "merging the counts" merge_counts
step "writing the pages" write_pages
branches | step "branches taken" report || exit 1
echo "The pages stand in $folder/report/index.html"
