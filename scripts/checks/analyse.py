#!/usr/bin/env python3
"""Runs one analyser over the compiled files, as many at a time as there are cores, and remembers what was clean.

usage: analyse.py tidy|clazy|headers BUILD_DIR
A file is done again only when it, a header of ours that it reaches, or the list of checks has changed.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import shutil
import subprocess
import sys

import repo

# level-free, positive: what these find costs time or correctness in a live grid
CLAZY = ",".join([
    "qstring-arg", "qdatetime-utc", "container-anti-pattern", "range-loop-detach",
    "range-loop-reference", "lambda-in-connect", "connect-non-signal", "connect-by-name", "wrong-qglobalstatic",
    "wrong-qevent-cast", "temporary-iterator", "unused-non-trivial-variable", "mutable-container-key", "qenums",
    "virtual-signal", "overridden-signal", "qmap-with-pointer-key", "writing-to-temporary", "strict-iterators", "detaching-temporary", "incorrect-emit", "lambda-unique-connection", "post-event",
])
OURS = ("hostapi/", "host/", "shell/", "client/", "plugins/")


def compile_commands(build):
    with open(build / "compile_commands.json", encoding="utf-8") as file:
        return {entry["file"]: entry for entry in json.load(file)}


def reached(name, seen, roots):
    """The files of ours that a file includes, directly or not."""
    path = repo.ROOT / name
    if name in seen or not path.is_file():
        return
    seen.add(name)
    for include in repo.includes(path.read_text(encoding="utf-8")):
        for root in (str(pathlib.PurePath(name).parent), *roots):
            if (repo.ROOT / root / include).is_file():
                reached(os.path.normpath(f"{root}/{include}"), seen, roots)


def fingerprint(name, kind):
    seen = set()
    reached(name, seen, ["hostapi", "host", "shell/zrwidget", "client", "client/desk"])
    digest = hashlib.sha256((kind + CLAZY + repo.read(".clang-tidy")).encode())
    for part in sorted(seen):
        digest.update(part.encode())
        digest.update((repo.ROOT / part).read_bytes())
    return digest.hexdigest()


def tool(name):
    return shutil.which(f"{name}-14") or shutil.which(name) or name


def plain_arguments(entry):
    """The file's own definitions and include folders, without what only another compiler knows."""
    words = shlex.split(entry["command"])
    return [word for number, word in enumerate(words)
            if word.startswith(("-D", "-I", "-std", "-f")) or words[number - 1] == "-isystem" or word == "-isystem"]


def command_for(kind, name, entry, build):
    if kind == "tidy":
        return [tool("clang-tidy"), "--quiet", "-p", str(build), f"--header-filter={repo.ROOT}/(hostapi|host|shell|client|plugins)/", name]
    if kind == "clazy":
        return ["clazy-standalone", f"--checks={CLAZY}", "-p", str(build), f"--header-filter={repo.ROOT}/(hostapi|host|shell|client|plugins)/", name]
    return ["g++", "-fsyntax-only", "-fPIC", "-Wall", "-Wextra", "-Werror", *plain_arguments(entry), "-include", name, "-x", "c++", "/dev/null"]


def run(kind, name, entry, build, cache):
    mark = cache / fingerprint(name, kind)
    if mark.exists():
        return name, ""
    done = subprocess.run(command_for(kind, name, entry, build), cwd=repo.ROOT, capture_output=True, text=True)
    text = done.stdout + done.stderr
    bad = done.returncode != 0 or "warning:" in text or "error:" in text
    if not bad:
        mark.touch()
    return name, text if bad else ""


def work_list(kind, build):
    commands = compile_commands(build)
    if kind == "headers":
        # A public header is compiled with the flags of any file of its own library.
        like = commands[str(repo.ROOT / "shell/zrwidget/ZrTableModel.cpp")]
        names = repo.tracked("hostapi/*.h", "shell/zrwidget/*.h")
        return [(name, like) for name in names if not name.endswith("_p.h")]
    names = repo.tracked(*[f"{folder}*.cpp" for folder in OURS])
    return [(name, commands[str(repo.ROOT / name)]) for name in names if str(repo.ROOT / name) in commands]


def main():
    kind, build = sys.argv[1], pathlib.Path(sys.argv[2]).resolve()
    cache = repo.ROOT / "build" / "lint-cache"
    cache.mkdir(parents=True, exist_ok=True)
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [pool.submit(run, kind, name, entry, build, cache) for name, entry in work_list(kind, build)]
        for job in concurrent.futures.as_completed(jobs):
            name, text = job.result()
            if text:
                failed += 1
                print(f"{name}:\n{text}")
    print(f"{kind}: {len(jobs)} files, {failed} with findings")
    return 1 if failed or not jobs else 0


if __name__ == "__main__":
    sys.exit(main())
