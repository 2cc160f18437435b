#!/usr/bin/env bash
# Installs what is missing, builds, and runs the main job on the bundled demo: writes the demo
# drawing (DXF) and its picture (SVG) to out/demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake --preset default >/dev/null
cmake --build --preset default -j "$(nproc)"
mkdir -p out/demo
./build/default/apps/asch/asch demo -o out/demo
echo "Demo written to $(pwd)/out/demo"
ls -l out/demo
