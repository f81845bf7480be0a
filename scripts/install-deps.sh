#!/usr/bin/env bash
# Installs the Debian packages the build needs (as root, or through sudo).
#   scripts/install-deps.sh          build and run
#   scripts/install-deps.sh --tests  also what the test suite uses (LibreOffice for the RTF check)
set -euo pipefail
packages=(cmake ninja-build g++ clang libgtest-dev libgmock-dev libbenchmark-dev zlib1g-dev libpng-dev libjpeg-dev
          libcurl4-openssl-dev qt6-base-dev)
if [[ "${1:-}" == "--tests" ]]; then
  packages+=(libreoffice-writer-nogui)
fi
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]} == 0)); then
  exit 0
fi
run() { if [[ $(id -u) -eq 0 ]]; then "$@"; else sudo "$@"; fi; }
export DEBIAN_FRONTEND=noninteractive
run apt-get update -qq
run apt-get install -y -qq --no-install-recommends "${missing[@]}"
