#!/usr/bin/env python3
"""Files and functions stay small: .cpp 800 lines, .h 400, a function 80 at the most."""
import re
import sys

import repo

NEVER = {".cpp": 800, ".h": 400}
EXPLAIN = {".cpp": 500, ".h": 250}
FUNCTION_NEVER = 80
FUNCTION_EXPLAIN = 50
# Test tables may be longer.
TABLE = re.compile(r"_data\(\)$")


def functions(text):
    """(name, first line, length) of the bodies that open and close in column 0, as the pinned format writes them."""
    lines = text.splitlines()
    start = None
    for number, line in enumerate(lines):
        if line == "{" and start is None:
            start = number
        elif line.startswith("}") and start is not None:
            head = signature(lines, start)
            if not re.match(r"\s*(class|struct|enum|union|namespace|typedef)\b", head):
                yield head.strip(), start + 1, number - start + 1
            start = None


def signature(lines, start):
    number = start - 1
    while number > 0 and re.match(r"\s+[:,]|\s{8,}", lines[number]):
        number -= 1
    return lines[number] if number >= 0 else ""


def complaints(root=repo.ROOT, notes=None):
    found = []
    for name in repo.cpp_files(root):
        text = repo.read(name, root)
        suffix = name[name.rfind("."):]
        count = text.count("\n")
        if count > NEVER[suffix]:
            found.append(f"{name}: {count} lines; {NEVER[suffix]} is the most")
        elif notes is not None and count > EXPLAIN[suffix]:
            notes.append(f"{name}: {count} lines")
        for head, line, length in functions(text):
            if length > FUNCTION_NEVER and not TABLE.search(head):
                found.append(f"{name}:{line}: {length} lines in {head}; {FUNCTION_NEVER} is the most")
            elif notes is not None and length > FUNCTION_EXPLAIN:
                notes.append(f"{name}:{line}: {length} lines in {head}")
    return found


if __name__ == "__main__":
    large = []
    result = repo.report(complaints(notes=large))
    for note in large:
        print("note:", note)
    sys.exit(result)
