#!/usr/bin/env bash
# The smallest host with the compiler and pkg-config alone; and every installed header with what it needs installed.
. "$(dirname "$0")/packaging.sh"

export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
read -ra options <<< "-std=c++17 -fPIC -Wall -Wextra -Werror $flags"
# With the backslashes that pkg-config puts before blanks.
# shellcheck disable=SC2162
read -a package <<< "$(pkg-config --cflags --libs OrderParamTable_mini OrderParamTable_mini-reference)"
[[ $(pkg-config --print-requires OrderParamTable_mini) == Qt5Widgets ]] || fail "Qt5Widgets is not required"
[[ $(pkg-config --modversion OrderParamTable_mini) == "$version" ]] || fail "the version is another one"

mkdir -p "$scratch/pkg-config"
"$compiler" "${options[@]}" -o "$scratch/pkg-config/embed" "$source/examples/embed/main.cpp" "${package[@]}"
says pkg-config "$here/expected/embed.txt" \
    env LD_LIBRARY_PATH="$prefix/$libdir" "$scratch/pkg-config/embed" --quit

sed 's|OrderParamTable_mini/platform/||; s|OrderParamTable_mini/reference/|reference/|; s|.*|#include <&>|' \
    "$here/expected/headers.txt" > "$scratch/pkg-config/headers.cpp"
"$compiler" "${options[@]}" -DQT_NO_KEYWORDS -fsyntax-only "$scratch/pkg-config/headers.cpp" "${package[@]}" \
    || fail "a header needs more than is installed"
finish "The package is found by pkg-config."
