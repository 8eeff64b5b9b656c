#!/usr/bin/env bash
# Builds everything with clang under the address and undefined-behaviour sanitizers into
# build-asan/ (the fuzz targets as libFuzzer programs) and runs the test suite there, benchmarks
# left out. A leak, an invalid access or undefined behaviour fails the test that meets it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
# -O1 and line tables only: what the sanitizers' reports need, at a shorter build than -O2 -g.
CC=clang CXX=clang++ cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPLIB_FUZZ=ON \
    -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -gline-tables-only -DNDEBUG" \
    -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >/dev/null
cmake --build build-asan -j2
source scripts/sanitizer-env.sh
# Whole allocation stacks (Qt has no frame pointers), so that the suppressions can match a frame
# of the library that leaked; it costs the tests about twice their time.
export ASAN_OPTIONS="$ASAN_OPTIONS:fast_unwind_on_malloc=0"
cd build-asan
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2 -LE bench
