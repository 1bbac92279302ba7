#!/usr/bin/env bash
# Shows the demo application: all its forms, in all its languages, as pictures.
#   ./demo.sh             natively, without a display; pictures in out/
#   ./demo.sh --windows   the Windows program under Wine; pictures in out/windows/
set -eu
cd "$(dirname "$0")"
. scripts/packages.sh

build() {
    mkdir -p build
    { cmake --preset "$1" && cmake --build "build/$1" --parallel --target demo; } >"build/demo-$1.log" 2>&1 ||
        { cat "build/demo-$1.log" >&2; exit 1; }
}

case ${1:-} in
'')
    scripts/install-packages "${native_packages[@]}"
    build native
    build/native/bin/demo --tour --out out
    pictures=out
    ;;
--windows)
    scripts/install-packages "${native_packages[@]}" "${windows_packages[@]}"
    build windows
    mkdir -p out/windows
    scripts/with-printer scripts/run-wine build/windows/bin/demo.exe --tour --out out/windows
    pictures=out/windows
    ;;
*)
    echo 'usage: ./demo.sh [--windows]' >&2
    exit 2
    ;;
esac
echo
echo "Look at the pictures in $PWD/$pictures: main-sv.png is the main form in Swedish,"
echo "booking-ja.png a booking in Japanese, planning-ar.png the harbour's planning in Arabic,"
echo "box-question-de.png a message box and box-font-de.png a dialog of the system in German."
