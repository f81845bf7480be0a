#!/usr/bin/env bash
# Builds everything and runs the whole test suite. This is what CI runs.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh --tests
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVARDENA_WERROR=ON -DVARDENA_BENCH=ON -DVARDENA_GUI=ON >/dev/null
cmake --build build -j2
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2
