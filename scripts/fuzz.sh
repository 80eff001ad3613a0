#!/usr/bin/env bash
# Fuzzes the model reader with libFuzzer for a bounded time (seconds, default 600).
# Seeds come from the models written by the tests' generator in fuzz/semillas.
# A second argument "busqueda" fuzzes the byte search against a plain search instead.
set -euo pipefail
cd "$(dirname "$0")/.."
segundos="${1:-600}"
CXX=clang++ CC=clang cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVADRO_FUZZ=ON -DVADRO_VENTANAS=OFF -DVADRO_PRUEBAS=OFF -DVADRO_SANITIZERS=ON
if [ "${2:-}" = busqueda ]; then
    cmake --build build-fuzz --target fuzz_buscar_texto
    mkdir -p build-fuzz/corpus-busqueda
    exec build-fuzz/fuzz/fuzz_buscar_texto build-fuzz/corpus-busqueda \
        -max_total_time="$segundos" -rss_limit_mb=2048 -timeout=10 -max_len=4096 -print_final_stats=1
fi
cmake --build build-fuzz --target fuzz_cargar_modelo
mkdir -p build-fuzz/corpus
export VADRO_DIR="$(mktemp -d)"
build-fuzz/fuzz/fuzz_cargar_modelo build-fuzz/corpus fuzz/semillas \
    -max_total_time="$segundos" -rss_limit_mb=2048 -timeout=10 -max_len=65536 -print_final_stats=1
