#!/usr/bin/env bash
# Builds the fuzzers and runs each for a while; prints what they did. What they find is kept as a test.

usage() {
    cat <<'USAGE'
Usage: tests/fuzz/run.sh [OPTION]... [TARGET]...

  --seconds N     how long each target runs (default: 30)
  --no-install    install nothing, take what is there
  --help          this text

Without a TARGET all of them run, one after the other. The exit status is 1 when one found something; the input,
minimised, then lies in tests/fuzz/findings/TARGET/, from where the tests replay it: name it after what it broke.
USAGE
}

# shellcheck source=scripts/common.sh
. "$(dirname "$(readlink -f "$0")")/../../scripts/common.sh"

seconds=30
install=yes
targets=()
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --seconds) seconds=$(argument_of "$1" $# "${2:-}"); shift ;;
        --no-install) install=no ;;
        -*) fail "unknown option $1 (tests/fuzz/run.sh --help lists them)" ;;
        *) targets+=("$1") ;;
    esac
    shift
done
[[ $seconds =~ ^[1-9][0-9]*$ ]] || fail "--seconds takes a whole number"

folder=tests/fuzz
[[ ${#targets[@]} -gt 0 ]] || mapfile -t targets < <(ls "$folder/seeds")
for target in "${targets[@]}"; do
    [[ -d $folder/seeds/$target ]] || fail "no target $target; there are: $(ls -C "$folder/seeds")"
done

[[ $install == no ]] || ensure_packages "${build_packages[@]}" clang libclang-rt-14-dev llvm
prepare_environment
build_preset fuzz fuzzers

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=64:detect_stack_use_after_return=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1

work=$project_root/build/fuzz/run
found=no

# The value of one of the figures that a fuzzer prints at its end; a dash when it did not get that far.
figure_of() {
    local value
    value=$(sed -n "s/^stat::$2: *//p" "$1" | tail -n 1)
    printf '%s' "${value:--}"
}

# Inputs may grow up to 1 MB. The fuzzer lets them grow as shorter ones bring nothing new, which keeps it fast; that
# inputs of 1 MB take bounded memory is measured by the tests over inputs of that size. Leaks are looked for where the
# seeds are replayed under the sanitizers: after every input it takes most of the time, and the distribution's Qt itself
# leaks in reading some wrong JSON. The schedule by rare features takes longer than an input that touches thousands.
fuzz() {
    local target=$1
    "build/fuzz/fuzzers/${target}_fuzzer" -max_total_time="$seconds" -max_len=1048576 -rss_limit_mb=2048 -timeout=25 -detect_leaks=0 -entropic=0 \
        -dict="$folder/dictionaries/$target.dict" -print_final_stats=1 -artifact_prefix="$work/$target/artifacts/" \
        "$work/$target/corpus" "$folder/seeds/$target" >"$work/$target/log" 2>&1 || true
}

# Keeps what was found, made as small as half a minute allows; a hang or a flood stays as it is.
keep() {
    local target=$1 artifact=$2 name
    name=$folder/findings/$target/$(basename "$artifact")
    mkdir -p "$folder/findings/$target"
    cp "$artifact" "$name"
    [[ $(basename "$artifact") == crash-* ]] || return 0
    "build/fuzz/fuzzers/${target}_fuzzer" -minimize_crash=1 -max_total_time=30 -exact_artifact_path="$name.smaller" \
        "$artifact" >>"$work/$target/log" 2>&1 || true
    [[ ! -s $name.smaller ]] || cp "$name.smaller" "$name"
    rm -f "$name.smaller"
}

# Where a target begins besides its seeds: what is mended by now, and for scripts all that are kept as tests.
begin_corpus() {
    local target=$1
    rm -rf "${work:?}/$target"
    mkdir -p "$work/$target/corpus" "$work/$target/artifacts"
    [[ ! -d $folder/findings/$target ]] || cp -r "$folder/findings/$target/." "$work/$target/corpus"
    [[ $target != ReplayReader ]] \
        || find tests/recordings -name '*.jsonl' ! -name '*.expected.jsonl' -exec cp -t "$work/$target/corpus" {} +
}

printf '%-22s %12s %8s %14s\n' target executions crashes 'peak memory'
for target in "${targets[@]}"; do
    begin_corpus "$target"
    fuzz "$target"
    mapfile -t artifacts < <(find "$work/$target/artifacts" -type f)
    executions=$(figure_of "$work/$target/log" number_of_executed_units)
    printf '%-22s %12s %8d %11s MB\n' "$target" "$executions" "${#artifacts[@]}" \
        "$(figure_of "$work/$target/log" peak_rss_mb)"
    for artifact in "${artifacts[@]}"; do
        keep "$target" "$artifact"
        found=yes
    done
    if [[ ${#artifacts[@]} -gt 0 || $executions == - ]]; then
        found=yes
        grep -hE -m 3 'does not hold|ERROR: |SUMMARY: |runtime error' "$work/$target/log" || tail -n 5 "$work/$target/log"
    fi
done
[[ $found == no ]] || fail "something was found (logs: build/fuzz/run/TARGET/log, inputs: $folder/findings/)"
