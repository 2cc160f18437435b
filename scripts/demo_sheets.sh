#!/usr/bin/env bash
# The main job on the demo: builds the demo workspace, draws a grid of assembly scheme sheets, one
# for every node of the demo water system, places fittings joined at their flanges and a comment
# on the sheet of junction Č-1, draws the chamber of valve Z-3 on a sheet of its own, and writes
# the drawing with its pictures:
#   OUT/schemes.dxf        the drawing
#   OUT/schemes.svg        all of it
#   OUT/scheme_C-1.svg     the sheet with the fittings
#   OUT/scheme_Z-3.svg     the sheet with the chamber
#   OUT/schemes.pdf        printed by LibreCAD, when it is installed
# Usage: scripts/demo_sheets.sh ASCH OUT   (ASCH: the asch program; the workspace goes to OUT/workspace)
set -euo pipefail
asch=$1
out=$2
workspace=$out/workspace
drawing=$out/schemes.dxf
mkdir -p "$out"
rm -f "$drawing"
"$asch" workspace init "$workspace" --demo
on=(--workspace "$workspace" --drawing "$drawing")
# The id of the sheet whose lower-left corner is at X,Y.
sheet_at() {
  "$asch" list "$drawing" --workspace "$workspace" --json |
    python3 -c 'import json,sys; x,y=map(float,sys.argv[1:]); print(next(s["id"] for s in json.load(sys.stdin)["schemes"] if s["basePoint"][:2]==[x,y]))' "$1" "$2"
}

# One A4 sheet per node, five in a row, rows upwards from the origin; the sheet of junction Č-1
# is the second of the first row, at (230, 0).
"$asch" grid "${on[@]}" --definition 'A4 portrait' --all-nodes --rows 3 --columns 5 --gap-x 20 --gap-y 20 --at 0,0

# Č-1: a tee with a gate valve and pipe pieces on its run and a pipe piece on its branch, each
# joined flange to flange onto the one before.
"$asch" add-element "${on[@]}" --item 'T 100x80 PN16' --view top --at 335,150
"$asch" add-element "${on[@]}" --item 'E 100 PN16' --view front --at 290,150 --join-scheme-flange 317,150
"$asch" add-element "${on[@]}" --item 'FF 100x500 PN16' --view top --at 250,150 --join-scheme-flange 290,150
"$asch" add-element "${on[@]}" --item 'FF 100x500 PN16' --view top --at 390,150 --join-scheme-flange 360,150
"$asch" add-element "${on[@]}" --item 'FF 80x500 PN16' --view top --at 335,200 --rotate 90 \
  --join-scheme-flange 335,175
"$asch" comment "${on[@]}" --text 'Zasun DN100 otvoren' --at 260,180

# Z-3, a valve in a chamber: an A3 sheet below the grid with the chamber's side and top view.
"$asch" draw "${on[@]}" --definition 'A3 landscape' --node Z-3 --at 0,-317
z3=$(sheet_at 0 -317)
"$asch" manhole "${on[@]}" --scheme "$z3" --side --at 120,-160
"$asch" manhole "${on[@]}" --scheme "$z3" --top --at 320,-160

"$asch" list "$drawing" --workspace "$workspace"
"$asch" render "$drawing" -o "$out/schemes.svg"
"$asch" render "$drawing" -o "$out/scheme_C-1.svg" --scheme "$(sheet_at 230 0)"
"$asch" render "$drawing" -o "$out/scheme_Z-3.svg" --scheme "$z3"
if command -v librecad >/dev/null; then
  # Printed beside the drawing, under its name; fitted to the page with a margin.
  QT_QPA_PLATFORM=offscreen librecad dxf2pdf -a -f 10,10,10,10 "$drawing" >/dev/null 2>&1 ||
    echo "LibreCAD could not print $drawing" >&2
fi
