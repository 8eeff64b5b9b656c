#!/usr/bin/env bash
# Builds and runs every test through CTest on the offscreen platform.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2
bash ../scripts/test-install.sh
