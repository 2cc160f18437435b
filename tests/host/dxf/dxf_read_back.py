#!/usr/bin/python3
"""Reads a DXF file with ezdxf, an independent DXF library, and prints as JSON what the host's
tests compare: the errors ezdxf's audit finds and the extended data of every entity by handle.

Usage: dxf_read_back.py FILE
Output: {"errors": [...], "xdata": {"HANDLE": [[app, [[code, value], ...]], ...]}}
Text values have their \\U+XXXX escapes resolved; points are [x, y, z].
"""
import json
import re
import sys

import ezdxf

ESCAPE = re.compile(r"\\U\+([0-9A-Fa-f]{4})")


def decode(text):
    units = ESCAPE.sub(lambda m: chr(int(m.group(1), 16)), text)
    # Characters beyond 16 bits arrive as two escaped surrogates.
    return units.encode("utf-16", "surrogatepass").decode("utf-16")


def value_of(tag):
    value = tag.value
    if isinstance(value, str):
        return decode(value)
    if isinstance(value, (tuple, list)) or hasattr(value, "x"):
        return [float(c) for c in value]
    return value


def main():
    doc = ezdxf.readfile(sys.argv[1])
    xdata = {}
    for handle, entity in doc.entitydb.items():
        if not getattr(entity, "xdata", None):
            continue
        xdata[handle] = [[decode(app), [[tag.code, value_of(tag)] for tag in tags if tag.code != 1001]]
                         for app, tags in entity.xdata.data.items()]
    auditor = doc.audit()
    print(json.dumps({"errors": [str(e.message) for e in auditor.errors], "xdata": xdata}, ensure_ascii=False))


if __name__ == "__main__":
    main()
