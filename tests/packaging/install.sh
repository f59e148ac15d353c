#!/usr/bin/env bash
# Installs the build into a prefix, moves the prefix, and looks at what lies there.
. "$(dirname "$0")/packaging.sh"

rm -rf "$scratch/installed" "$scratch/documents" "$prefix"
mkdir -p "$scratch"
step install cmake --install "$build" --prefix "$scratch/installed"
mv "$scratch/installed" "$prefix"

# The headers of the exported classes and of the platform, and what a host may say to the reference platform.
headers=$(cd "$prefix/include" && find . -type f | sed 's|^\./||' | LC_ALL=C sort)
diff <(LC_ALL=C sort "$here/expected/headers.txt") <(echo "$headers") || fail "the headers are others"
for file in bin/orderparam-workbench bin/orderparam-replay share/orderparam/{accounts,tasks}.json \
    share/orderparam/orderparam.ini share/man/man1/orderparam-{workbench,replay}.1.gz \
    share/applications/orderparam-workbench.desktop share/doc/OrderParamTable_mini/{README.md,LICENSE} \
    "$libdir"/lib{OrderParamTable_mini,orderparam_reference}.so \
    "$libdir"/cmake/OrderParamTable_mini/OrderParamTable_mini{Config,ConfigVersion,Targets}.cmake \
    "$libdir"/pkgconfig/OrderParamTable_mini{,-reference}.pc; do
    [[ -e $prefix/$file ]] || fail "$file is missing"
done

# A moved prefix still holds together: nothing looks for the build, and the programs find their libraries.
for file in "$prefix"/bin/* "$prefix/$libdir"/*.so; do
    path=$(readelf -d "$file" | sed -n 's/.*R\(UN\)\?PATH.*\[\(.*\)\]/\2/p')
    [[ $path == '$ORIGIN'* && $path != *:* ]] || fail "$(basename "$file") looks for its libraries in '$path'"
done
if grep -rlF "$source" "$prefix/$libdir/cmake" "$prefix/$libdir/pkgconfig"; then
    fail "these name the source tree"
fi
# options_in: the long options that a text names, one a line, but for the one that Qt adds to help.
options_in() {
    grep -o -e '--[a-z][a-z-]*' | grep -vx -e --help-all | LC_ALL=C sort -u
}
for program in workbench replay; do
    output=$("$prefix/bin/orderparam-$program" --version 2>&1) || fail "orderparam-$program: $output"
    [[ $output == *"orderparam-$program $version"* ]] || fail "orderparam-$program calls itself $output"
    diff <("$prefix/bin/orderparam-$program" --help | options_in) \
        <(gzip -cd "$prefix/share/man/man1/orderparam-$program.1.gz" | tr -d '\\' | options_in) \
        || fail "the manual page of orderparam-$program has other options than its help"
done
if command -v man >/dev/null && man --warnings -l "$prefix"/share/man/man1/*.gz 2>&1 >/dev/null | grep .; then
    fail "man warns"
fi

# The documentation's component stands alone: what its pages link to comes with it.
step documents cmake --install "$build" --prefix "$scratch/documents" --component doc
links=0
while IFS=: read -r page target; do
    links=$((links + 1))
    [[ -e $(dirname "$page")/$target ]] || fail "$page links to $target, which is not installed"
done < <(grep -roP --include='*.md' '\]\((?!https?://|#)\K[^)#]+' "$scratch/documents")
[[ $links -gt 50 ]] || fail "only $links links were looked at"

output=$(cd "$scratch" && cpack --config "$build/CPackConfig.cmake" 2>&1) \
    && fail "packages are made of a build for another prefix"
[[ $output == *"cmake --workflow --preset package"* ]] || fail "cpack does not say how packages are made: $output"

finish "The installed prefix can be moved."
