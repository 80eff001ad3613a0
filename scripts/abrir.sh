#!/usr/bin/env bash
# Installs what is missing, builds in Release and opens the designer.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec xvfb-run -a build/src/programa/vadro-programador
fi
exec build/src/programa/vadro-programador
