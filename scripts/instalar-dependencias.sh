#!/usr/bin/env bash
# Installs what the build, the tests and the screenshots need on Debian 12, skipping what is there.
set -euo pipefail
paquetes=(cmake ninja-build g++ clang libgtest-dev libbenchmark-dev qt6-base-dev qt6-base-dev-tools qt6-translations-l10n
          libgl-dev fontconfig fonts-dejavu-core xvfb xauth locales)
faltan=()
for p in "${paquetes[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$p")
done
if [ ${#faltan[@]} -gt 0 ]; then
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${faltan[@]}"
fi
# A Spanish locale, so that the tests can show the core ignores a decimal comma.
if ! locale -a 2>/dev/null | grep -qi '^es_ES.utf8$'; then
    localedef -i es_ES -f UTF-8 es_ES.UTF-8 || true
fi
