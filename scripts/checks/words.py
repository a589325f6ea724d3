#!/usr/bin/env python3
"""Words that do not belong in the repository: unfinished work, paths of one machine, documents nobody here has."""
import re
import sys

import repo

SELF = "scripts/checks/"
RULES = [
    (r"\bParts? [1-7]\.\d", "speaks of a document that is not here"),
    (r"(?i)\bthe specificatio[n]\b|\bspec[.]md\b|\bseed documen[t]\b", "speaks of a document that is not here"),
    (r"(?i)\bfixme\b|\bXXX\b|#if 0\b", "is unfinished by its own words"),
    (r"\bTODO\b", "needs the condition that ends it; better, do it"),
    (r"/(?:home|root|work|tmp)/[A-Za-z0-9_]", "is a path of one machine"),
    (r"[ \t]+$", "ends in blanks"),
]
TEXT = ("*.cpp", "*.h", "*.py", "*.md", "*.txt", "*.cmake", "*.json", "*.xml", "*.css", "*.ts", "*.svg", "dev", ".ci/run", "scripts/*")
# Where a pattern of a rule is the matter itself: files, and what the line holds.
ALLOWED = [(r"tests/.*", r"/(?:tmp|root)/"), (r".*\.(svg|ts|csv)", r"[ \t]+$")]


def allowed(name, line):
    return any(re.fullmatch(files, name) and re.search(matter, line) for files, matter in ALLOWED)


def complaints(root=repo.ROOT):
    found = []
    for name in repo.tracked(*TEXT, root=root):
        if name.startswith(SELF):
            continue
        try:
            text = repo.read(name, root)
        except UnicodeDecodeError:
            continue  # a test's deliberately broken file
        for number, line in enumerate(text.splitlines(), 1):
            for pattern, why in RULES:
                if re.search(pattern, line) and not allowed(name, line):
                    found.append(f"{name}:{number}: {why}: {line.strip()[:100]}")
    return found


if __name__ == "__main__":
    sys.exit(repo.report(complaints()))
