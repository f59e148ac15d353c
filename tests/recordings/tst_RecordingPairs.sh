#!/usr/bin/env bash
# Every script has its expectations, one object a command, every expectation has its script, each script says in a
# comment what it checks, and there are enough of them. Usage: tst_RecordingPairs.sh FOLDER LEAST
set -euo pipefail

folder=$1
least=$2
failures=0
scripts=0

fail() {
    echo "$1"
    failures=$((failures + 1))
}

# What the program skips: comments, and lines of blanks.
commands_in() {
    grep -cvE '^(#|[[:space:]]*$)' "$1" || true
}

# What asserts nothing does not count as an expectation.
expectations_in() {
    grep -cE '^\{"' "$1" || true
}

check() {
    local script=$1 expected=${1%.jsonl}.expected.jsonl
    [ -f "$expected" ] || { fail "$script: no expectations beside it"; return; }
    grep -q '^# .' "$script" || fail "$script: no comment says what is checked"
    local commands expectations
    commands=$(commands_in "$script")
    expectations=$(expectations_in "$expected")
    [ "$commands" -gt 0 ] || fail "$script: no command"
    [ "$commands" -eq "$(commands_in "$expected")" ] && [ "$commands" -eq "$expectations" ] \
        || fail "$script: $commands commands, $expectations expectations"
}

for file in "$folder"/*.jsonl; do
    case $file in
        *.expected.jsonl) [ -f "${file%.expected.jsonl}.jsonl" ] || fail "$file: no script beside it" ;;
        *) scripts=$((scripts + 1)); check "$file" ;;
    esac
done

[ "$scripts" -ge "$least" ] || fail "$scripts scripts, at least $least are wanted"
echo "$scripts recordings, $failures faults"
[ "$failures" -eq 0 ]
