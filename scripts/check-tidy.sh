#!/usr/bin/env bash
# clang-tidy with the checks of .clang-tidy over the sources that the dev preset compiles, or over those given.

. "$(dirname "$(readlink -f "$0")")/common.sh"

ensure_packages "${build_packages[@]}" clang-tidy-14
prepare_environment
build_preset dev

files=("$@")
if [[ ${#files[@]} == 0 ]]; then
    mapfile -d '' -t files < <(git ls-files -z -- '*.cpp')
fi
compiled=()
for file in "${files[@]}"; do
    # Sources that no target of this preset compiles have no flags to be checked with.
    ! grep -qF "$file\"" build/dev/compile_commands.json || compiled+=("$file")
done
[[ ${#compiled[@]} -gt 0 ]] || fail "none of the files is compiled by the dev preset"
printf '%s\0' "${compiled[@]}" | xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/dev 2>/dev/null \
    || fail "clang-tidy objects (see above)"
echo "clang-tidy has no objection to ${#compiled[@]} files."
