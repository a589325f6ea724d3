#!/usr/bin/env python3
"""Holds the classes that the installed library exports against the list in the folder's README.

usage: exports.py PREFIX
"""
import pathlib
import re
import subprocess
import sys

import repo
import rows


def exported(library):
    """Classes with a virtual table, a meta object or a member among the dynamic symbols, ours only."""
    text = subprocess.run(["nm", "-DC", "--defined-only", str(library)], check=True, capture_output=True, text=True).stdout
    names = set()
    for line in text.splitlines():
        symbol = line.split(" ", 2)[-1]
        strong = line.split(" ")[1:2] and line.split(" ")[1] in "TDBRV"
        match = re.match(r"(?:vtable for |typeinfo for )?((?:Zr|ZR|Freeze|CheckBox)\w+)(?:::|$)", symbol)
        if match and (strong or symbol.startswith("vtable")):
            names.add(match.group(1))
    return names


def listed():
    names = set()
    for unit, cells in rows.rows().items():
        if cells[2].lower() in ("yes", "with private class"):
            names.add(unit)
        if cells[2].lower() == "with private class":
            names.add(f"{unit}Private")
    return names


def main():
    library = next(pathlib.Path(sys.argv[1]).glob("lib*/**/libzrwidget.so"))
    have, want = exported(library), listed()
    lines = [f"{name} is exported, but {rows.README} does not say so" for name in sorted(have - want)]
    lines += [f"{name} is listed as exported, but the library does not export it" for name in sorted(want - have)]
    print(f"exports: {len(have)} classes")
    return repo.report(lines)


if __name__ == "__main__":
    sys.exit(main())
