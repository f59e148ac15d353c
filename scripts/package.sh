#!/usr/bin/env bash
# Makes the Debian packages and shows that they are sound: lintian finds nothing, they install into a bare root, the
# programs run there, and removing them leaves nothing behind.

usage() {
    cat <<'USAGE'
Usage: scripts/package.sh [OPTION]...

  --build DIR     build there instead of in build/package
  --no-install    install nothing on this machine, take what is there
  --help          this text

The packages are left in the build folder, under packages/.
USAGE
}

caller_directory=$PWD
. "$(dirname "$(readlink -f "$0")")/common.sh"

build=$project_root/build/package
install=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --build) build=$(argument_of "$1" $# "${2:-}"); [[ $build == /* ]] || build=$caller_directory/$build; shift ;;
        --no-install) install=no ;;
        *) fail "unknown option $1 (scripts/package.sh --help lists them)" ;;
    esac
    shift
done

build_packages_anew() {
    rm -rf "$build/packages"
    cmake --build "$build" --target packaged && (cd "$build" && cpack)
}

check_with_lintian() {
    local options=(--fail-on error,warning)
    [[ $(id -u) != 0 ]] || options+=(--allow-root)
    lintian "${options[@]}" "$build"/packages/*.deb
}

# in_root DPKG-ARGUMENT...: dpkg on a bare root, by a user who is root in there alone. What the packages depend on is
# missing there.
in_root() {
    fakeroot dpkg --root="$root" --log=/dev/null --force-not-root --force-script-chrootless --force-depends \
        --no-triggers "$@" > "$root.log" 2>&1 || { cat "$root.log"; return 1; }
}

install_and_remove() {
    local package program names=() left
    mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
    touch "$root"/var/lib/dpkg/{status,available}
    for package in "$build"/packages/*.deb; do
        names+=("$(dpkg-deb -f "$package" Package)")
    done
    in_root --install "$build"/packages/*.deb || return
    for program in workbench replay; do
        LD_LIBRARY_PATH=$(echo "$root"/usr/lib/*-linux-gnu) "$root/usr/bin/orderparam-$program" --version || return
    done
    in_root --purge "${names[@]}" || return
    left=$(find "$root" -mindepth 1 -path "$root/var" -prune -o -print)
    [[ -z $left ]] || { printf 'left behind: %s\n' "$left"; return 1; }
}

[[ $install == no ]] || ensure_packages "${build_packages[@]}" "${packaging_packages[@]}"
prepare_environment
step "configuring package" cmake --preset package -B "$build"
step "building the packages" build_packages_anew
step "checking the packages" check_with_lintian
scratch=$(mktemp -d "${TMPDIR:-/tmp}/orderparam-packages.XXXXXX")
root=$scratch/root
step "installing and removing the packages" install_and_remove
rm -rf "$scratch"
ls -l "$build"/packages/*.deb
