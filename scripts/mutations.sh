#!/usr/bin/env bash
# Puts the deliberate faults of tests/mutations/faults.txt into a copy of the last commit, one at a time, and tells which
# of them the tests notice.

usage() {
    cat <<'USAGE'
Usage: scripts/mutations.sh [--list] [--fresh] [NAME]...

  --list    names the faults and what they mean
  --fresh   forgets what earlier runs have found; without it only faults that no test has noticed yet are tried
  --help    this text

With names only these faults are tried, again if need be. The copy and its build stand in build/mutations; the tests are
those that can reach the library, without the long ones and valgrind. Fails below 95 %.
USAGE
}

. "$(dirname "$(readlink -f "$0")")/common.sh"
. tests/mutations/faults.sh

least=95
folder=$project_root/build/mutations
clean=$folder/clean # the last commit
tree=$folder/tree   # the same with a fault in it
build=$folder/build
results=$folder/results.txt

# Tests of these folders look at no code of the library that is not looked at elsewhere.
other_folders=' benchmarks binary docs fuzz mutations packaging reference sanitizers scripts support workbench '
programs=(replay)

# Brings the copy to the last commit; what has not changed keeps its time, and is not built again.
copy_last_commit() {
    local file
    rm -rf "$clean"
    mkdir -p "$clean" "$tree"
    git archive HEAD | tar -x -C "$clean"
    while IFS= read -r -d '' file; do
        cmp -s "$clean/$file" "$tree/$file" || { mkdir -p "$tree/$(dirname "$file")"; cp -p "$clean/$file" "$tree/$file"; touch "$tree/$file"; }
    done < <(cd "$clean" && find . -type f -print0)
    while IFS= read -r -d '' file; do
        [[ -e $clean/$file ]] || rm "$tree/$file"
    done < <(cd "$tree" && find . -type f -print0)
}

# test_folders [FILE]: the folders with tests that reach the library, the one named like the file's first.
test_folders() {
    local own='' path name
    [[ -z $1 ]] || own=$(basename "$(dirname "$1")")
    [[ -z $own || ! -e $tree/tests/$own/CMakeLists.txt ]] || echo "$own"
    for path in "$tree"/tests/*/CMakeLists.txt; do
        name=$(basename "$(dirname "$path")")
        [[ $other_folders == *" $name "* || $name == "$own" ]] || echo "$name"
    done
}

build_copy() {
    local targets=() name
    for name in $(test_folders ''); do
        targets+=("tests/$name/all")
    done
    for name in "${programs[@]}"; do
        [[ ! -e $tree/$name/CMakeLists.txt ]] || targets+=("$name/all")
    done
    cmake --build "$build" --target "${targets[@]}" > "$folder/build.log" 2>&1
}

# run_tests [FILE]: answers whether all tests pass; the first that does not is left in $by.
run_tests() {
    local name
    by=''
    for name in $(test_folders "$1"); do
        ctest --test-dir "$build/tests/$name" --label-exclude 'long|valgrind' --stop-on-failure --parallel 2 \
            --no-tests=ignore > "$folder/test.log" 2>&1 && continue
        by=$(sed -n 's/^\t *[0-9]* - \([^ ]*\) (.*/\1/p' "$folder/test.log" | head -n 1)
        return 1
    done
}

prepare() {
    copy_last_commit
    step "configuring the copy" cmake -S "$tree" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE= -DORDERPARAM_WERROR=OFF \
        -DCMAKE_LINK_DEPENDS_NO_SHARED=ON
    step "building the copy" build_copy
    step "testing the copy without a fault" run_tests ''
}

# try NAME: leaves the verdict in $verdict and the test that noticed in $by.
try() {
    local file=${fault_file[$1]}
    by=''
    put_fault "$1" "$tree" || fail "$1 cannot be put in"
    if ! build_copy; then
        verdict='does not build'
    elif run_tests "$file"; then
        verdict=missed
    else
        verdict=caught
    fi
    cp "$clean/$file" "$tree/$file"
}

# What a verdict holds for: the fault's own text.
fingerprint() {
    printf '%s' "${fault_file[$1]}${fault_old[$1]}${fault_new[$1]}" | cksum | cut -d ' ' -f 1
}

list=no
names=()
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --list) list=yes ;;
        --fresh) rm -f "$results" ;;
        -*) fail "unknown option $1 (scripts/mutations.sh --help lists them)" ;;
        *) names+=("$1") ;;
    esac
    shift
done

read_faults tests/mutations/faults.txt || fail "the list of faults cannot be read"
for name in "${names[@]}"; do
    [[ -n ${fault_file[$name]:-} ]] || fail "no fault is named $name (scripts/mutations.sh --list names them)"
done
if [[ $list == yes ]]; then
    for name in "${fault_names[@]}"; do
        printf '%-34s %s\n' "$name" "${fault_means[$name]}"
    done
    exit
fi

ensure_packages "${build_packages[@]}"
prepare_environment
mkdir -p "$folder"
touch "$results"
prepare

tried=("${names[@]}")
[[ ${#names[@]} -gt 0 ]] || tried=("${fault_names[@]}")
caught=0
for name in "${tried[@]}"; do
    key="$name $(fingerprint "$name") caught"
    known=$(grep -F "$key " "$results" | head -n 1 || true)
    if [[ -n $known && ${#names[@]} == 0 ]]; then
        verdict=caught by=${known#"$key "}
    else
        try "$name"
        { grep -v "^$name " "$results" || true; } > "$results.new"
        printf '%s %s %s %s\n' "$name" "$(fingerprint "$name")" "$verdict" "$by" >> "$results.new"
        mv "$results.new" "$results"
    fi
    [[ $verdict != caught ]] || caught=$((caught + 1))
    printf '%-14s %-34s %-30s %s\n' "$verdict" "$name" "$by" "${fault_means[$name]}"
done

total=${#tried[@]}
percent=$((100 * caught / total))
echo "$caught of $total caught ($percent %)"
[[ $percent -ge $least ]] || fail "the tests notice less than $least % of the faults"
