#!/usr/bin/env bash
# Starts the designer, the development environment, on a project, folder or forms.
#   ./designer.sh [PATH...]         the Windows program under Wine, on the display that there is
#   ./designer.sh --tour [PATH...]  natively, without a display: pictures in out/
set -eu
cd "$(dirname "$0")"
. scripts/packages.sh

build() {
    mkdir -p build
    { cmake --preset "$1" && cmake --build "build/$1" --parallel --target designer; } >"build/designer-$1.log" 2>&1 ||
        { cat "build/designer-$1.log" >&2; exit 1; }
}

case ${1:-} in
--help)
    sed -n '2,4s/^# \{0,3\}//p' "$0"
    ;;
--tour)
    shift
    scripts/install-packages "${native_packages[@]}"
    build native
    [ $# -gt 0 ] || set -- demo demo/forms/*.dfm
    build/native/bin/designer --tour --out out "$@"
    echo "Look at the pictures in $PWD/out: designer-MainForm.png is the demo's main form being designed."
    ;;
*)
    scripts/install-packages "${native_packages[@]}" "${windows_packages[@]}"
    build windows
    [ $# -gt 0 ] || set -- demo
    RUN_WINE_TIMEOUT=0 scripts/run-wine build/windows/bin/designer.exe "$@"
    ;;
esac
