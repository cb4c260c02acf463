#!/usr/bin/python3
"""Writes the test drawing in three DXF versions: drawing-R12.dxf, drawing-R2000.dxf and
drawing-R2018.dxf in the folder given as the only argument.

Layer PLATE: a plate of 100 x 60 with a rounded corner (radius 10) drawn as four loose
lines and an arc, in scrambled order and directions. Layer HOLES: a circle (radius 5 about
(20, 30)), a slot of two half arcs as a lightweight polyline (an old-style one in R12, which
has no other) and a window with one quarter arc as an old-style 2D polyline. Layer AXIS: an
open chain of a line and a quarter arc, and one lonely line.
"""
import sys

import ezdxf


def draw(doc):
    msp = doc.modelspace()
    plate = {"layer": "PLATE"}
    msp.add_line((0, 60), (90, 60), dxfattribs=plate)
    msp.add_arc((90, 50), 10, 0, 90, dxfattribs=plate)
    msp.add_line((100, 0), (0, 0), dxfattribs=plate)
    msp.add_line((0, 0), (0, 60), dxfattribs=plate)
    msp.add_line((100, 50), (100, 0), dxfattribs=plate)
    holes = {"layer": "HOLES"}
    msp.add_circle((20, 30), 5, dxfattribs=holes)
    slot = [(40, 25, 0), (60, 25, 1), (60, 35, 0), (40, 35, 1)]
    if doc.dxfversion == "AC1009":
        msp.add_polyline2d(slot, format="xyb", close=True, dxfattribs=holes)
    else:
        msp.add_lwpolyline(slot, format="xyb", close=True, dxfattribs=holes)
    window = [(70, 10, 0), (85, 10, 0), (85, 20, 0), (70, 20, 0.41421356237309503)]
    msp.add_polyline2d(window, format="xyb", close=True, dxfattribs=holes)
    axis = {"layer": "AXIS"}
    msp.add_line((0, 70), (50, 70), dxfattribs=axis)
    msp.add_arc((50, 80), 10, 270, 0, dxfattribs=axis)
    msp.add_line((0, 90), (10, 90), dxfattribs=axis)


def main():
    folder = sys.argv[1]
    for version in ("R12", "R2000", "R2018"):
        doc = ezdxf.new(version)
        for name in ("PLATE", "HOLES", "AXIS"):
            doc.layers.add(name)
        draw(doc)
        doc.saveas(f"{folder}/drawing-{version}.dxf")


if __name__ == "__main__":
    main()
