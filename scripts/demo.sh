#!/usr/bin/env bash
# Installs what is missing, builds, and runs the main job on the bundled demo (scripts/
# demo_sheets.sh): builds the demo workspace in out/demo/workspace/ (replacing one built before),
# draws a grid of assembly scheme sheets, one for every node of the demo water system, places
# fittings and a comment on one sheet and a chamber's views on another, and writes the drawing
# out/demo/schemes.dxf with its pictures. It also writes the host's demo drawing, the views of a
# demo manhole and of two catalog fittings.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake --preset default >/dev/null
cmake --build --preset default -j "$(nproc)"
asch=./build/default/apps/asch/asch
mkdir -p out/demo
./scripts/demo_sheets.sh "$asch" out/demo
workspace=out/demo/workspace
"$asch" demo -o out/demo
"$asch" manhole "$workspace" RO-3 --system 2 -o out/demo/manhole_RO-3.svg
# One fitting drawn by the fittings plug-in, one from the demo's block files.
"$asch" catalog draw 'T 100x80 PN16' --workspace "$workspace" -o out/demo/tee.svg
"$asch" catalog draw 'E 100 PN16' --workspace "$workspace" -o out/demo/valve.svg
echo "Demo written to $(pwd)/out/demo"
ls -l out/demo
