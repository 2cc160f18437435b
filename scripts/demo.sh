#!/usr/bin/env bash
# Installs what is missing, builds, and runs the main job on the bundled demo: builds the demo
# workspace in out/demo-workspace/ (replacing one built before) and writes the demo drawing (DXF),
# its picture (SVG), the views of a demo manhole and of two catalog fittings to out/demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake --preset default >/dev/null
cmake --build --preset default -j "$(nproc)"
mkdir -p out/demo
./build/default/apps/asch/asch workspace init out/demo-workspace --demo
./build/default/apps/asch/asch demo -o out/demo
./build/default/apps/asch/asch manhole out/demo-workspace RO-3 --system 2 -o out/demo/manhole_RO-3.svg
# One fitting drawn by the fittings plug-in, one from the demo's block files.
./build/default/apps/asch/asch catalog draw 'T 100x80 PN16' --workspace out/demo-workspace -o out/demo/tee.svg
./build/default/apps/asch/asch catalog draw 'E 100 PN16' --workspace out/demo-workspace -o out/demo/valve.svg
echo "Demo written to $(pwd)/out/demo"
ls -l out/demo
