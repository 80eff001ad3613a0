#!/usr/bin/env bash
# Installs what is missing, builds with the sanitizers and runs every test headless.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
cmake -S . -B build-pruebas -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVADRO_SANITIZERS=ON
cmake --build build-pruebas
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=0
ctest --test-dir build-pruebas --output-on-failure -j"$(nproc)"
