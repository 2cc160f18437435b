#!/usr/bin/python3
"""Writes a drawing with ezdxf, an independent DXF library, for the host's tests to load.

Usage: dxf_make_sample.py FILE VERSION   (VERSION: R2000, R2018...)
Holds one entity of each kind the host reads, in the order listed, then kinds it does not read
(spline, ellipse, hatch), and a block VALVE with an attribute definition that an INSERT uses.
"""
import sys

import ezdxf


def main():
    path, version = sys.argv[1], sys.argv[2]
    doc = ezdxf.new(version, setup=True)
    doc.appids.new("XIMO")
    doc.layers.add("PIPES", color=5, linetype="DASHED")
    doc.styles.add("ISO", font="isocp.shx")
    valve = doc.blocks.new("VALVE", base_point=(5, 5))
    valve.add_circle((5, 5), 2)
    valve.add_attdef("POS", (0, 10), dxfattribs={"prompt": "Pozicija", "height": 2.0})
    msp = doc.modelspace()
    line = msp.add_line((0, 0, 0), (10, 5, 0), dxfattribs={"layer": "PIPES", "color": 1})
    line.set_xdata("XIMO", [(1000, "Čvor š-ž ĐĆ €"), (1040, 2.5), (1070, 7), (1071, 100000), (1010, (1, 2, 3))])
    msp.add_lwpolyline([(0, 0, 0.5, 0.5, 0.25), (10, 0, 0, 0, 0), (10, 10, 0, 0, 0)], format="xyseb", close=True)
    msp.add_circle((20, 20), 4)
    msp.add_arc((1, 2), 3, 30, 120)
    msp.add_text("Šaht Č-12", dxfattribs={"style": "ISO", "height": 3.5, "rotation": 45}).set_placement(
        (1, 1), align=ezdxf.enums.TextEntityAlignment.MIDDLE_CENTER)
    msp.add_mtext("Opis\\Pčvora", dxfattribs={"char_height": 2.0, "width": 40, "attachment_point": 5})
    msp.add_point((3, 4, 5))
    msp.add_blockref("VALVE", (100, 50), dxfattribs={"xscale": 2, "yscale": 2, "rotation": 90}).add_auto_attribs(
        {"POS": "12"})
    msp.add_spline([(0, 0), (1, 1), (2, 0), (3, 1)])
    msp.add_ellipse((0, 0), major_axis=(2, 0), ratio=0.5)
    hatch = msp.add_hatch()
    hatch.paths.add_polyline_path([(0, 0), (1, 0), (1, 1)])
    doc.saveas(path)


if __name__ == "__main__":
    main()
