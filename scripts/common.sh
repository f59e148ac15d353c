# shellcheck shell=bash disable=SC2034
# Shared by run.sh, test.sh, .ci/run and the scripts of this folder, which source it. It changes to the project's root.

set -euo pipefail

script_name=$(basename "$0")
project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$project_root"

# What a bare Debian 12 lacks for building, testing and showing the project. The font is the one the themes name.
build_packages=(
    cmake ninja-build g++ ccache
    qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools
    libboost-dev nlohmann-json3-dev
    libbenchmark-dev librapidcheck-dev abigail-tools valgrind
    fontconfig fonts-noto-cjk
    pkg-config
)

# What the tests need beyond that: the manual of the headers is one of them.
test_packages=(doxygen)

# What making and checking Debian packages needs beyond that.
packaging_packages=(dpkg-dev fakeroot file lintian)

# Ends the script with one line that says what failed.
fail() {
    printf '%s: %s\n' "$script_name" "$*" >&2
    exit 1
}

# step TITLE COMMAND...: says what begins and runs it; when it fails, the last line says so.
step() {
    local title=$1
    shift
    printf '== %s\n' "$title"
    "$@" || fail "$title failed (see above)"
}

# argument_of OPTION COUNT [VALUE]: the value of an option, COUNT being how many arguments are left with it.
argument_of() {
    [[ $2 -ge 2 ]] || fail "$1 needs a value (./$script_name --help tells more)"
    printf '%s' "$3"
}

is_installed() {
    [[ " $(dpkg-query -W -f '${db:Status-Status} ' "$1" 2>/dev/null)" == *' installed '* ]]
}

# Runs a command as root; a terminal may be asked for the password, a pipe never is.
as_root() {
    if [[ $(id -u) == 0 ]]; then
        "$@" </dev/null
    else
        sudo "$@"
    fi
}

can_be_root() {
    [[ $(id -u) == 0 ]] && return
    command -v sudo >/dev/null || return
    sudo -n true 2>/dev/null || [[ -t 0 ]]
}

run_apt() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=2 \
        -o Acquire::http::Timeout=30 "$@"
}

# Those of the given packages that the package sources do not offer.
not_offered() {
    local package
    for package in "$@"; do
        [[ $(LC_ALL=C apt-cache policy "$package" 2>/dev/null) == *Candidate:\ [0-9]* ]] || printf ' %s' "$package"
    done
}

# ensure_packages PACKAGE...: installs what is missing. Asks nothing of the network when nothing is.
ensure_packages() {
    command -v dpkg-query >/dev/null || fail "this is no Debian: install the counterparts of: $*, then use cmake --preset"
    local package missing=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [[ ${#missing[@]} == 0 ]] && return
    can_be_root || fail "no root and no sudo to install missing packages; as root: apt-get install ${missing[*]}"
    install_packages "${missing[@]}"
}

# A package source that cannot be reached is fatal only when the install then fails: what is needed may be at hand.
install_packages() {
    local log reached=yes
    log=$(mktemp "${TMPDIR:-/tmp}/orderparam-packages.XXXXXX.log")
    printf '== installing: %s\n' "$*"
    run_apt update -o APT::Update::Error-Mode=any >"$log" 2>&1 || reached=no
    if run_apt install --no-install-recommends "$@" >>"$log" 2>&1; then
        rm -f "$log"
        return
    fi
    [[ $reached == yes ]] || fail "cannot install $*: the package servers cannot be reached (no network?); log: $log"
    local unknown
    unknown=$(not_offered "$@")
    [[ -z $unknown ]] || fail "missing package:$unknown is not offered by the package sources (Debian 12 has it); log: $log"
    fail "cannot install $*: $(grep '^E:' "$log" | tail -n 1); log: $log"
}

# What Qt and ccache want of their surroundings and a bare machine, a container or a service account lacks.
prepare_environment() {
    export LANG=${LANG:-C.UTF-8}
    if [[ ! -O ${XDG_RUNTIME_DIR:-} || ! -d ${XDG_RUNTIME_DIR:-} ]]; then
        XDG_RUNTIME_DIR=$(mktemp -d "${TMPDIR:-/tmp}/orderparam-runtime.XXXXXX")
        export XDG_RUNTIME_DIR
        trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
    fi
    [[ -n ${CCACHE_DIR:-} || -w ${HOME:-} ]] || export CCACHE_DISABLE=1
}

# build_preset PRESET [TARGET]: configures and builds into build/PRESET.
build_preset() {
    local preset=$1 target=${2:-all}
    [[ ! -e build ]] || [[ -w build ]] || fail "the folder build/ belongs to somebody else: remove it or run as its owner"
    step "configuring $preset" cmake --preset "$preset"
    step "building $preset" cmake --build --preset "$preset" --target "$target"
}
