#!/usr/bin/env bash
# From a clone to the order panel on the screen: installs what is missing, builds, starts the workbench.

usage() {
    cat <<'USAGE'
Usage: ./run.sh [OPTION]... [-- WORKBENCH-ARGUMENT...]

Installs the Debian packages that are missing, builds the project and starts the workbench. Without a display
(neither DISPLAY nor WAYLAND_DISPLAY) it renders the tour instead: one PNG for each panel and dialog.

  --tour DIR      render the tour into DIR and start nothing
  --preset NAME   what to build: release (default), dev or asan
  --build-only    stop when the workbench is built
  --no-install    install nothing, take what is there
  --help          this text
USAGE
}

caller_directory=$PWD
. "$(dirname "$(readlink -f "$0")")/scripts/common.sh"

preset=release
tour=
build_only=no
install=yes
while [[ $# -gt 0 ]]; do
    case $1 in
        --help|-h) usage; exit ;;
        --tour) tour=$(argument_of "$1" $# "${2:-}"); shift ;;
        --preset) preset=$(argument_of "$1" $# "${2:-}"); shift ;;
        --build-only) build_only=yes ;;
        --no-install) install=no ;;
        --) shift; break ;;
        *) fail "unknown option $1 (./run.sh --help lists them)" ;;
    esac
    shift
done
[[ -z $tour || $tour == /* ]] || tour=$caller_directory/$tour

has_display() {
    [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]
}

packages=("${build_packages[@]}")
[[ -z ${WAYLAND_DISPLAY:-} || -n ${DISPLAY:-} ]] || packages+=(qtwayland5)
[[ $install == no ]] || ensure_packages "${packages[@]}"
prepare_environment
build_preset "$preset" orderparam-workbench
workbench=build/$preset/bin/orderparam-workbench
[[ $build_only == no ]] || exit 0

if [[ -z $tour ]] && has_display; then
    "$workbench" "$@" || fail "the workbench ended with status $?"
    exit 0
fi
[[ -n $tour ]] || echo "No display: rendering the tour instead."
tour=${tour:-$project_root/build/$preset/tour}
mkdir -p "$tour" || fail "cannot make the folder $tour"
QT_QPA_PLATFORM=offscreen "$workbench" --tour "$tour" "$@" || fail "the tour ended with status $?"
echo "The tour's pictures are in $tour"
