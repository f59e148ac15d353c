#!/usr/bin/env bash
# run.sh and test.sh in a scratch copy of the tree, among stand-ins for the package manager, cmake and ctest, whose
# behaviour each case sets. Usage: tst_Commands.sh SOURCE-TREE SCRATCH-FOLDER
set -euo pipefail

source_tree=$1
scratch=$2
failures=0

# stand_in NAME BODY: a program of that name, first in PATH, that notes its call.
stand_in() {
    printf '#!/usr/bin/env bash\necho "%s $*" >> "%s/calls"\n%s\n' "$1" "$scratch" "$2" > "$scratch/bin/$1"
    chmod +x "$scratch/bin/$1"
}

# A machine on which everything is installed and everything works.
fresh_machine() {
    rm -rf "$scratch"
    mkdir -p "$scratch/bin" "$scratch/tree/scripts"
    cp "$source_tree"/run.sh "$source_tree"/test.sh "$scratch/tree/"
    cp "$source_tree"/scripts/*.sh "$scratch/tree/scripts/"
    : > "$scratch/calls"
    stand_in id 'echo 0'
    stand_in sudo 'exit 1'
    stand_in dpkg-query 'echo "installed "'
    stand_in apt-get ''
    stand_in apt-cache 'echo "  Candidate: 1.0"'
    stand_in ctest ''
    stand_in cmake 'mkdir -p build/release/bin
printf "#!/bin/sh\necho workbench \$QT_QPA_PLATFORM \$* >> %s/calls\n" "'"$scratch"'" > build/release/bin/orderparam-workbench
chmod +x build/release/bin/orderparam-workbench'
}

# on_machine COMMAND...: runs a command of the scratch tree; its output and status are left in $output and $status.
on_machine() {
    status=0
    output=$(cd "$scratch" && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM ${display:+DISPLAY=$display} \
        PATH="$scratch/bin:/usr/bin:/bin" TMPDIR="$scratch" "$@" </dev/null 2>&1) || status=$?
}

check() {
    local what=$1
    shift
    "$@" && return
    printf 'FAIL: %s\n  status %s, output:\n%s\n  calls:\n%s\n' "$what" "$status" "$output" "$(cat "$scratch/calls")"
    failures=$((failures + 1))
}

fails() { [[ $status != 0 ]]; }
succeeds() { [[ $status == 0 ]]; }
last_line_says() { [[ ${output##*$'\n'} == *"$1"* ]]; }
lines_are() { [[ $(printf '%s\n' "$output" | wc -l) == "$1" ]]; }
called() { grep -qE "$1" "$scratch/calls"; }
not_called() { ! called "$1"; }

fresh_machine
on_machine tree/test.sh
check "with everything installed the tests run" succeeds
check "the tests are those of the dev preset" called '^ctest --preset dev '
check "nothing missing: the package manager is not asked" not_called '^apt-get'

for state in config-files half-installed not-installed; do
    fresh_machine
    stand_in dpkg-query "[[ \${*: -1} != ninja-build ]] && echo 'installed ' || echo '$state '"
    on_machine tree/test.sh
    check "a package in the state $state is installed, and it alone" called '^apt-get .* install --no-install-recommends ninja-build$'
    check "after installing the tests run" succeeds
done

fresh_machine
stand_in dpkg-query 'exit 1'
stand_in id 'echo 1000'
on_machine tree/run.sh
check "no root and no sudo: fails" fails
check "no root and no sudo: one line" lines_are 1
check "no root and no sudo: says so, and what to install" last_line_says "run.sh: no root and no sudo to install missing packages; as root: apt-get install cmake "
check "no root and no sudo: the package manager is left alone" not_called '^apt-get'

stand_in sudo '[[ $1 != -n ]] || shift; "$@"'
on_machine tree/run.sh
check "with sudo: packages are installed through it" called '^sudo env .*apt-get .* install '
check "with sudo: the workbench is started" called '^workbench'

fresh_machine
stand_in dpkg-query 'exit 1'
stand_in apt-get 'exit 100'
on_machine tree/run.sh
check "no network: fails" fails
check "no network: says so in the last line" last_line_says "the package servers cannot be reached (no network?)"

stand_in apt-get '[[ $* != *install* ]]'
stand_in apt-cache '[[ $* == *libboost-dev ]] && echo "  Candidate: (none)" || echo "  Candidate: 1.0"'
on_machine tree/test.sh
check "a package that is not offered: fails" fails
check "a package that is not offered: named alone" last_line_says "test.sh: missing package: libboost-dev is not offered"

stand_in apt-get 'if [[ $* == *install* ]]; then echo "E: disk full"; exit 100; fi'
stand_in apt-cache 'echo "  Candidate: 1.0"'
on_machine tree/test.sh
check "another error of the package manager is handed on" last_line_says "E: disk full"

fresh_machine
stand_in apt-get '[[ $* == *install* ]]'
stand_in dpkg-query 'exit 1'
on_machine tree/test.sh
check "a package source that is down does not matter when the install works" succeeds

fresh_machine
stand_in cmake '[[ $* != *--build* ]]'
on_machine tree/test.sh
check "a build that fails: fails" fails
check "a build that fails: says so in the last line" last_line_says "test.sh: building dev failed"
stand_in cmake ''
stand_in ctest 'exit 8'
on_machine tree/test.sh --preset asan
check "tests that fail: fails" fails
check "tests that fail: says so in the last line" last_line_says "test.sh: testing asan failed"

fresh_machine
on_machine tree/run.sh
check "no display: the tour is rendered into the build folder" called "^workbench offscreen --tour $scratch/tree/build/release/tour$"
check "no display: prints where" last_line_says "The tour's pictures are in $scratch/tree/build/release/tour"
on_machine tree/run.sh --tour pictures
check "a tour's folder is taken from where the caller stands" called "^workbench offscreen --tour $scratch/pictures$"
: > "$scratch/calls"
display=:7 on_machine tree/run.sh -- --some option
check "with a display the workbench is started with the arguments after --" called '^workbench  *--some option$'
check "with a display no tour is rendered" not_called 'tour'
: > "$scratch/calls"
on_machine tree/run.sh --build-only
check "--build-only starts nothing" not_called '^workbench'

on_machine tree/run.sh --help
check "--help succeeds" succeeds
for option in --tour --preset --build-only --no-install; do
    check "--help lists $option" grep -qe "$option" <<< "$output"
done
on_machine tree/run.sh --bogus
check "an unknown option: one line that names it" last_line_says "run.sh: unknown option --bogus"
check "an unknown option: fails" fails
on_machine tree/test.sh --preset
check "an option without its value: fails" fails
check "an option without its value: says so" last_line_says "test.sh: --preset needs a value"

[[ -z $(find "$scratch" -maxdepth 1 -name 'orderparam-runtime*') ]] || { echo "FAIL: runtime folders are left behind"; failures=$((failures + 1)); }
rm -rf "$scratch"
[[ $failures == 0 ]] || { echo "$failures checks failed"; exit 1; }
