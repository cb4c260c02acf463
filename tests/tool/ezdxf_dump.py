#!/usr/bin/python3
"""Reads a DXF file with the strict reader of ezdxf and prints its lightweight polylines as
JSON in the orx tool's form (closed, layer, elevation, vertices with x, y and bulge), so that
a test can compare them with what the tool wrote. Fails (exit 1) when the reader refuses the
file or its audit finds errors."""
import json
import sys

import ezdxf


def main():
    doc = ezdxf.readfile(sys.argv[1])
    auditor = doc.audit()
    if auditor.has_errors:
        for error in auditor.errors:
            print(error.message, file=sys.stderr)
        sys.exit(1)
    polylines = []
    for entity in doc.modelspace():
        if entity.dxftype() != "LWPOLYLINE":
            print("unexpected entity " + entity.dxftype(), file=sys.stderr)
            sys.exit(1)
        vertices = [{"x": x, "y": y, "bulge": b}
                    for x, y, b in entity.get_points(format="xyb")]
        if not entity.closed:
            vertices[-1]["bulge"] = 0.0
        polylines.append({"closed": bool(entity.closed), "layer": entity.dxf.layer,
                          "elevation": entity.dxf.elevation, "vertices": vertices})
    json.dump(polylines, sys.stdout)


if __name__ == "__main__":
    main()
