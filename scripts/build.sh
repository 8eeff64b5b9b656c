#!/usr/bin/env bash
# Configures and builds into build/ (two jobs).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >/dev/null
cmake --build build -j2
