#!/usr/bin/env python3
"""Every text of the sources stands in the translation files, in Chinese, and in English where it isn't English."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

import repo

# Where the sources lie, and the files of their texts.
PLACES = [("client", "client/i18n/client_{}.ts"), ("shell/zrwidget", "shell/zrwidget/i18n/zrwidget_{}.ts")]
LANGUAGES = ["en", "zh_CN"]
CHINESE = re.compile("[\u4e00-\u9fff]")


def places(root):
    """Folder and files of texts; a plugin brings its own."""
    plugins = sorted(path.parent.name for path in (root / "plugins").glob("*/i18n"))
    return PLACES + [(f"plugins/{name}", f"plugins/{name}/i18n/{name}_{{}}.ts") for name in plugins]


def entries(path):
    """(context, source) -> the message's element."""
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            found[context.findtext("name"), message.findtext("source")] = message.find("translation")
    return found


def extracted(root, folder, path):
    """The file as the extracting tool would write it now."""
    with tempfile.TemporaryDirectory() as place:
        copy = pathlib.Path(place) / path.name
        shutil.copy(path, copy)
        command = ["lupdate", "-silent", "-no-obsolete", "-locations", "none", folder, "-ts", str(copy)]
        subprocess.run(command, check=True, cwd=root, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return entries(copy)


def is_done(language, key, translation):
    text = translation.text or ""
    if translation.get("type") != "unfinished" and text:
        return True
    return language == "en" and not CHINESE.search(key[1])


def complaints(root=repo.ROOT):
    found = []
    for folder, pattern in places(root):
        for language in LANGUAGES:
            name = pattern.format(language)
            held = entries(root / name)
            wanted = extracted(root, folder, root / name)
            found += [f"{name}: misses \"{key[1]}\" of {key[0]}" for key in wanted if key not in held]
            found += [f"{name}: \"{key[1]}\" of {key[0]} is in no source" for key in held if key not in wanted]
            found += [f"{name}: \"{key[1]}\" of {key[0]} has no translation"
                      for key, translation in held.items() if key in wanted and not is_done(language, key, translation)]
    return found


if __name__ == "__main__":
    if not shutil.which("lupdate"):
        print("texts: lupdate is missing")
        sys.exit(1)
    sys.exit(repo.report(complaints()))
