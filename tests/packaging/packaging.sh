# shellcheck shell=bash disable=SC2034
# Shared by the tests of this folder, which source it. They are called with the scratch folder, which lies outside the
# tree, and a file of the settings of the build under test:
#
#   build, source, compiler, flags (of the sanitizers), libdir, version, launcher (of the compiler)
set -euo pipefail

scratch=$1
. "$2"
prefix="$scratch/a prefix" # a blank shows what is not quoted
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
failures=0

fail() {
    printf 'FAIL: %s\n' "$*"
    failures=$((failures + 1))
}

# The test's last line: fails when anything has.
finish() {
    [[ $failures == 0 ]] || { echo "$failures checks failed"; exit 1; }
    echo "$1"
}

# For cmake, where a build of the library itself is to take little time.
cheap=(-G Ninja "-DCMAKE_CXX_COMPILER=$compiler" "-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher"
    "-DCMAKE_CXX_FLAGS=$flags -O0")

# step NAME COMMAND...: the output is only worth reading when it fails.
step() {
    "${@:2}" > "$scratch/$1.log" 2>&1 || { cat "$scratch/$1.log"; echo "FAIL: $1"; exit 1; }
}

# built PROJECT [CMAKE-ARGUMENT...]: configures and builds a copy of PROJECT, which then knows nothing of this tree. What
# has not changed is not built again; the package is looked for again.
built() {
    local name
    name=$(basename "$1")
    mkdir -p "$scratch/projects"
    cp -ru "$1" "$scratch/projects/"
    step "$name-configured" cmake -S "$scratch/projects/$name" -B "$scratch/builds/$name" -G Ninja \
        -U OrderParamTable_mini_DIR \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher" \
        -DCMAKE_CXX_FLAGS="$flags -Wall -Wextra -Werror" "${@:2}"
    step "$name-built" cmake --build "$scratch/builds/$name"
}

# says NAME EXPECTED PROGRAM [ARGUMENT...]: what a program writes is what the file EXPECTED holds.
says() {
    local written=$scratch/$1.written
    "${@:3}" > "$written" || fail "$1 ended with status $?"
    diff -u "$2" "$written" || fail "$1 wrote something else"
}
