"""What the checkers share: the tracked files, and the units of shell/zrwidget with their layers and families."""
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
LAYERS = ["base", "data", "draw", "control", "compound", "shell", "frame"]
UNIT_DIR = "shell/zrwidget"


def tracked(*patterns, root=ROOT):
    """Tracked and new, not ignored files; paths relative to the root."""
    command = ["git", "-C", str(root), "ls-files", "-co", "--exclude-standard", "--", *patterns]
    names = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
    return sorted(name for name in set(names) if (root / name).is_file())


def cpp_files(root=ROOT):
    return tracked("*.cpp", "*.h", root=root)


def read(name, root=ROOT):
    return (root / name).read_text(encoding="utf-8")


def units(root=ROOT):
    """Unit name -> (layer, family), in the order of the list in CMake."""
    found, group = {}, (None, None)
    for line in read(f"{UNIT_DIR}/CMakeLists.txt", root).splitlines():
        head = re.match(r"# --- (\w+): (.+?) ---$", line)
        if head:
            group = (head.group(1), head.group(2))
        unit = re.match(r"zr_unit\((\w+)\)", line)
        if unit:
            found[unit.group(1)] = group
    return found


def unit_of(include):
    """The unit a file of the flat folder belongs to."""
    name = pathlib.PurePath(include).name
    return re.sub(r"(_p)?\.(h|cpp)$", "", name)


def includes(text):
    return re.findall(r'^\s*#\s*include\s+["<]([^">]+)[">]', text, re.M)


def report(lines):
    for line in lines:
        print(line)
    return 1 if lines else 0
