#!/usr/bin/env python3
"""Arrows point down only: between the folders, between the layers of shell/zrwidget, and without a header cycle."""
import re
import sys

import repo

# A .cpp that must know a class above its layer, with the reason. This list only shrinks.
UPWARD = {}

# What a folder's files may not include.
FORBIDDEN = {
    "shell/": [(r"^Zr(ReferenceHost|DataStore)", "shell never includes host/"), (r"(^|/)host/", "shell never includes host/")],
    "host/": [(r"(^|/)shell/", "host never includes shell/")],
    "plugins/": [(r"(^|/)(client|host|shell)/", "plugins use only installed headers")],
}


def unit_arrows(root):
    units = repo.units(root)
    rank = {name: index for index, name in enumerate(repo.LAYERS)}
    for name in repo.tracked(f"{repo.UNIT_DIR}/*.h", f"{repo.UNIT_DIR}/*.cpp", root=root):
        unit = repo.unit_of(name)
        if unit not in units:
            yield f"{name}: not in the list of {repo.UNIT_DIR}/CMakeLists.txt"
            continue
        for include in repo.includes(repo.read(name, root)):
            target = repo.unit_of(include)
            if "/" in include or target not in units or target == unit:
                continue
            yield from arrow(name, units[unit], include, units[target], rank)


def arrow(name, own, include, other, rank):
    if own[0] is None or other[0] is None:
        return  # the export header stands in no layer
    if rank[other[0]] > rank[own[0]] and (name.split("/")[-1], include) not in UPWARD:
        yield f"{name}: {own[0]} may not include {include} of the higher layer {other[0]}"
    if include.endswith("_p.h") and own[1] != other[1]:
        yield f"{name}: {include} belongs to the family '{other[1]}'"


def folder_arrows(root):
    own = {repo.unit_of(name) for name in repo.tracked(f"{repo.UNIT_DIR}/*.h", root=root)}
    for name in repo.cpp_files(root):
        for include in repo.includes(repo.read(name, root)):
            for folder, rules in FORBIDDEN.items():
                for pattern, why in rules:
                    if name.startswith(folder) and re.search(pattern, include):
                        yield f"{name}: {include}: {why}"
            if name.startswith("host/") and "/" not in include and include.endswith(".h") and repo.unit_of(include) in own:
                yield f"{name}: {include}: host never includes shell/zrwidget"
            if name.startswith("hostapi/") and "/" in include and include.split("/")[0] in ("host", "shell"):
                yield f"{name}: {include}: the declarations include nothing of ours"
            if name.startswith("plugins/") and include.endswith("_p.h"):
                yield f"{name}: {include}: plugins use only installed headers"


def declarations_only(root):
    """No bodies in hostapi/: a bank's own headers take its place."""
    for name in repo.tracked("hostapi/*.h", root=root):
        text = re.sub(r"//[^\n]*", "", repo.read(name, root))
        if re.search(r"\)\s*(const\s*)?(noexcept\s*)?(override\s*)?\{", text):
            yield f"{name}: holds a body; hostapi/ holds declarations only"


def header_cycles(root):
    graph = {}
    for name in repo.tracked(f"{repo.UNIT_DIR}/*.h", root=root):
        graph[name.split("/")[-1]] = [i for i in repo.includes(repo.read(name, root)) if "/" not in i]
    state = {}

    def walk(node, path):
        state[node] = 1
        for target in graph.get(node, []):
            if state.get(target) == 1:
                yield f"header cycle: {' -> '.join(path + [target])}"
            elif target in graph and target not in state:
                yield from walk(target, path + [target])
        state[node] = 2

    for node in graph:
        if node not in state:
            yield from walk(node, [node])


def complaints(root=repo.ROOT):
    return [*unit_arrows(root), *folder_arrows(root), *declarations_only(root), *header_cycles(root)]


if __name__ == "__main__":
    sys.exit(repo.report(complaints()))
