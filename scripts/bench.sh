#!/usr/bin/env bash
# Builds the benchmarks in Release and runs them all; figures go to standard output.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DVADRO_BENCH=ON -DVADRO_PRUEBAS=OFF
cmake --build build-bench
for b in build-bench/bench/*/bench_*; do
    [ -x "$b" ] && "$b" "$@"
done
