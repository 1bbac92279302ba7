#!/usr/bin/env bash
# Builds and runs every test: natively with the address and undefined-behaviour
# sanitizers, and as Windows programs under Wine.
#   ./test.sh            both
#   ./test.sh native     the native half
#   ./test.sh windows    the Windows half
set -eu
cd "$(dirname "$0")"
. scripts/packages.sh
what=${1:-both}

run() {
    local preset=$1
    cmake --preset "$preset" >"build/$preset.log" 2>&1 || { cat "build/$preset.log" >&2; exit 1; }
    cmake --build "build/$preset" --parallel
    ctest --test-dir "build/$preset" --output-on-failure --parallel "$2"
}

mkdir -p build
case $what in
both | native)
    scripts/install-packages "${native_packages[@]}"
    run native-asan "$(nproc)"
    ;;
esac
case $what in
both | windows)
    scripts/install-packages "${native_packages[@]}" "${windows_packages[@]}"
    # One printer, one display and one Wine server for all tests; all end with this script.
    export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all
    scripts/with-printer xvfb-run -a -s '-screen 0 1280x1024x24' bash -c '
        scripts/run-wine cmd /c exit
        "$@"; status=$?
        timeout 30 wineserver -k
        exit $status' _ bash -c "$(declare -f run); set -eu; run windows 1"
    ;;
esac
