#!/usr/bin/env bash
# Builds the optimised programs and runs the benchmarks; arguments go to them,
# for example: ./bench.sh --benchmark_filter=SortFind
set -eu
cd "$(dirname "$0")"
. scripts/packages.sh
scripts/install-packages "${native_packages[@]}" "${bench_packages[@]}"
mkdir -p build
cmake --preset release >build/release.log 2>&1 || { cat build/release.log >&2; exit 1; }
cmake --build build/release --parallel
for program in build/release/bin/*_bench; do
    "$program" "$@"
done
