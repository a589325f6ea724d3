#!/usr/bin/env python3
"""Every unit of shell/zrwidget has a row in the folder's README, and a test that exists."""
import re
import sys

import repo

README = f"{repo.UNIT_DIR}/README.md"


def rows(root=repo.ROOT):
    """Unit -> the cells of its row: job, layer, exported, test, showcase."""
    found = {}
    for line in repo.read(README, root).splitlines():
        cells = [cell.strip().strip("`") for cell in line.strip().strip("|").split("|")]
        if line.startswith("|") and len(cells) >= 6 and re.match(r"^\w+$", cells[0]) and cells[0] != "Unit":
            found[cells[0]] = cells[1:]
    return found


def complaints(root=repo.ROOT):
    found, table = [], rows(root)
    tests = {name.split("/")[-1] for name in repo.tracked("tests/**/*.cpp", "tests/*.cpp", root=root)}
    for unit, (layer, _) in repo.units(root).items():
        if unit not in table:
            found.append(f"{README}: no row for {unit}")
            continue
        job, row_layer, _, test = table[unit][:4]
        if not job:
            found.append(f"{README}: {unit}: what is its job?")
        if layer and row_layer != layer:
            found.append(f"{README}: {unit}: layer {row_layer}, but listed under {layer}")
        for name in re.findall(r"tst_\w+", test):
            if f"{name}.cpp" not in tests:
                found.append(f"{README}: {unit}: {name}.cpp does not exist")
        if layer and not re.findall(r"tst_\w+", test):
            found.append(f"{README}: {unit}: no test named")
    for unit in table:
        if unit not in repo.units(root):
            found.append(f"{README}: {unit} has a row but is no unit")
    return found


if __name__ == "__main__":
    sys.exit(repo.report(complaints()))
