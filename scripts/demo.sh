#!/usr/bin/env bash
# Builds the program and converts a scratch copy of the sample works under examples/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2 --target vardena
scratch=$(mktemp -d /tmp/vardena-ejemplos.XXXXXX)
cp -r examples/. "$scratch"
echo "Sample works copied to $scratch"
build/vardena works "$scratch"
# Every work of version 3.00 or 3.01 in the folder is converted; the log says what happened
# to each file.
build/vardena convert --all "$scratch"
for work in "$scratch"/*/; do
  echo "------------------------------------------------------------"
  build/vardena info "$work"
done
