#!/usr/bin/env bash
# Fails on C++ files that clang-format would change, and on lines with trailing blanks; with --fix, formats them.

. "$(dirname "$(readlink -f "$0")")/common.sh"

case ${1:-} in
    '') mode=(--dry-run -Werror) ;;
    --fix) mode=(-i) ;;
    *) fail "usage: scripts/check-format.sh [--fix]" ;;
esac

command -v git >/dev/null || ensure_packages git
# Version 14 is Debian 12's; another one would break lines elsewhere.
formatter=clang-format-14
command -v "$formatter" >/dev/null || ensure_packages clang-format-14

mapfile -d '' -t files < <(git ls-files -z -- '*.h' '*.cpp')
[[ ${#files[@]} -gt 0 ]] || fail "no tracked C++ files found (is this a clone?)"
printf '%s\0' "${files[@]}" | xargs -0 -n 40 "$formatter" "${mode[@]}" \
    || fail "some files are not formatted (scripts/check-format.sh --fix formats them)"

blanks=$(git grep -nIE '[[:blank:]]+$' -- '*.h' '*.cpp' '*.txt' '*.cmake' '*.sh' '*.json' || true)
[[ -z $blanks ]] || { printf '%s\n' "$blanks" >&2; fail "these lines end in blanks"; }
echo "${#files[@]} files are formatted."
