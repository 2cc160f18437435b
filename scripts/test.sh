#!/usr/bin/env bash
# Installs what is missing, builds the developer preset and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
preset="${XIMO_PRESET:-dev}"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)"
ctest --preset "$preset" -j "$(nproc)"
