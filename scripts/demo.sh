#!/usr/bin/env bash
# Installs what is missing, builds, and runs the main job on the bundled demo: builds the demo
# workspace in out/demo-workspace/ (replacing one built before) and writes the demo drawing (DXF),
# its picture (SVG) and the views of a demo manhole to out/demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake --preset default >/dev/null
cmake --build --preset default -j "$(nproc)"
mkdir -p out/demo
./build/default/apps/asch/asch workspace init out/demo-workspace --demo
./build/default/apps/asch/asch demo -o out/demo
./build/default/apps/asch/asch manhole out/demo-workspace RO-3 --system 2 -o out/demo/manhole_RO-3.svg
echo "Demo written to $(pwd)/out/demo"
ls -l out/demo
