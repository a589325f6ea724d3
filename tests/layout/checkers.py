#!/usr/bin/env python3
"""Plants violations in a small repository and expects each checker to name them, and nothing else."""
import importlib
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPTS = pathlib.Path(__file__).resolve().parents[2] / "scripts"
sys.path[:0] = [str(SCRIPTS), str(SCRIPTS / "checks")]
sys.dont_write_bytecode = True

LIST = """# --- base: grid ---
zr_unit(ZrLow)
# --- control: grid ---
zr_unit(ZrHigh)
# --- compound: form ---
zr_unit(ZrForm)
"""
ROWS = """| Unit | Job | Layer | Exported | Test | Showcase |
|---|---|---|---|---|---|
| `ZrLow` | lies below | base | no | tst_zrlow | - |
| `ZrHigh` | stands above | control | yes | tst_zrhigh | - |
| `ZrForm` | asks | compound | yes | tst_zrform | - |
"""


class Planted(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        subprocess.run(["git", "init", "-q", str(self.root)], check=True)
        self.write("shell/zrwidget/CMakeLists.txt", LIST)
        self.write("shell/zrwidget/README.md", ROWS)
        for name in ("ZrLow", "ZrHigh", "ZrForm"):
            self.write(f"shell/zrwidget/{name}.h", "#pragma once\n")
            self.write(f"tests/grid/tst_{name.lower()}.cpp", "\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def expect(self, checker, *parts):
        found = importlib.import_module(checker).complaints(self.root)
        self.assertEqual(len(found), len(parts), found)
        for part in parts:
            self.assertTrue(any(part in line for line in found), (part, found))


class Layers(Planted):
    def test_clean_tree_is_clean(self):
        self.expect("layers")

    def test_include_of_a_higher_layer(self):
        self.write("shell/zrwidget/ZrLow.h", '#include "ZrHigh.h"\n')
        self.expect("layers", "base may not include ZrHigh.h")

    def test_private_header_of_another_family(self):
        self.write("shell/zrwidget/ZrHigh_p.h", "#pragma once\n")
        self.write("shell/zrwidget/ZrForm.cpp", '#include "ZrHigh_p.h"\n')
        self.expect("layers", "ZrHigh_p.h belongs to the family 'grid'")

    def test_private_header_of_the_own_family(self):
        self.write("shell/zrwidget/ZrLow_p.h", "#pragma once\n")
        self.write("shell/zrwidget/ZrHigh.cpp", '#include "ZrLow_p.h"\n')
        self.expect("layers")

    def test_header_cycle(self):
        self.write("shell/zrwidget/ZrHigh.h", '#include "ZrHigh_p.h"\n')
        self.write("shell/zrwidget/ZrHigh_p.h", '#include "ZrHigh.h"\n')
        self.expect("layers", "header cycle")

    def test_unlisted_file(self):
        self.write("shell/zrwidget/ZrStray.cpp", "\n")
        self.expect("layers", "ZrStray.cpp: not in the list")

    def test_shell_includes_the_reference_host(self):
        self.write("shell/zrwidget/ZrHigh.cpp", '#include "ZrReferenceHost.h"\n')
        self.expect("layers", "shell never includes host/")

    def test_host_includes_the_library(self):
        self.write("host/zrcore/ZrCore.cpp", '#include "ZrHigh.h"\n')
        self.expect("layers", "host never includes shell/zrwidget")

    def test_body_among_the_declarations(self):
        self.write("hostapi/zrcore/ZrCore.h", "class ZrCore {\n    int id() const { return 1; }\n};\n")
        self.expect("layers", "declarations only")

    def test_plugin_uses_a_private_header(self):
        self.write("plugins/depth/Depth.cpp", '#include "ZrHigh_p.h"\n')
        self.expect("layers", "plugins use only installed headers")

    def test_plugin_uses_the_client(self):
        self.write("plugins/depth/Depth.cpp", '#include "client/ZrClientFields.h"\n')
        self.expect("layers", "plugins use only installed headers")


class Sizes(Planted):
    def test_long_file(self):
        self.write("host/a.cpp", "int x;\n" * 801)
        self.expect("sizes", "801 lines; 800 is the most")

    def test_long_function(self):
        self.write("host/a.cpp", "int f()\n{\n" + "    g();\n" * 79 + "}\n")
        self.expect("sizes", "81 lines in int f()")

    def test_long_class_and_table_pass(self):
        body = "    g();\n" * 100
        self.write("host/a.cpp", f"class A\n{{\n{body}}};\n\nvoid T::rows_data()\n{{\n{body}}}\n")
        self.expect("sizes")


class Words(Planted):
    def test_unfinished_work_and_machine_paths(self):
        self.write("host/a.cpp", "// TO" + "DO later\n// FIX" + "ME\nopen(\"/ho" + "me/me/x\");\n")
        self.expect("words", "needs the condition", "unfinished by its own words", "path of one machine")

    def test_trailing_blanks(self):
        self.write("host/a.cpp", "int x; \n")
        self.expect("words", "ends in blanks")


class Rows(Planted):
    def test_clean(self):
        self.expect("rows")

    def test_missing_row_missing_test_wrong_layer(self):
        self.write("shell/zrwidget/README.md", ROWS.replace("| `ZrLow`", "| `ZrGone`").replace("| control", "| draw"))
        self.write("tests/grid/tst_zrform.cpp", "\n")
        (self.root / "tests/grid/tst_zrform.cpp").unlink()
        self.expect("rows", "no row for ZrLow", "ZrGone has a row but is no unit", "ZrHigh: layer draw", "tst_zrform.cpp does not exist")


class Texts(Planted):
    """One class with two texts, of which the files hold what a test says."""
    SOURCE = """class ZrLow { void f() { tr("Buy"); tr("\u786e\u8ba4"); } };\n"""
    GOOD = {"en": {"Buy": "", "\u786e\u8ba4": "OK"}, "zh_CN": {"Buy": "\u4e70\u5165", "\u786e\u8ba4": "\u786e\u8ba4"}}

    def setUp(self):
        super().setUp()
        self.write("shell/zrwidget/ZrLow.cpp", self.SOURCE)
        self.write("client/main.cpp", "\n")
        self.plant(self.GOOD)

    def plant(self, texts):
        for language, entries in texts.items():
            self.file("client/i18n/client", language, {})
            self.file("shell/zrwidget/i18n/zrwidget", language, entries)

    def file(self, stem, language, entries):
        messages = "".join(
            f"<message><source>{source}</source><translation>{text}</translation></message>"
            for source, text in entries.items())
        context = f"<context><name>ZrLow</name>{messages}</context>" if entries else ""
        self.write(f"{stem}_{language}.ts", f'<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS>'
                   f'<TS version="2.1" language="{language}" sourcelanguage="en">{context}</TS>\n')

    def changed(self, language, **changes):
        texts = {key: dict(entries) for key, entries in self.GOOD.items()}
        texts[language].update(changes)
        self.plant(texts)

    def test_good(self):
        self.expect("texts")

    def test_missing(self):
        self.plant({**self.GOOD, "zh_CN": {"\u786e\u8ba4": "\u786e\u8ba4"}})
        self.expect("texts", 'zh_CN.ts: misses "Buy" of ZrLow')

    def test_no_longer_used(self):
        self.changed("en", Sell="")
        self.expect("texts", 'en.ts: "Sell" of ZrLow is in no source')

    def test_not_translated(self):
        self.changed("zh_CN", Buy="")
        self.expect("texts", 'zh_CN.ts: "Buy" of ZrLow has no translation')

    def test_plugin_brings_its_own(self):
        self.write("plugins/depth/ZrDepth.cpp", 'class ZrDepth { void f() { tr("Bid"); } };\n')
        for language in ("en", "zh_CN"):
            self.file("plugins/depth/i18n/depth", language, {})
        self.expect("texts", 'depth_en.ts: misses "Bid" of ZrDepth', 'depth_zh_CN.ts: misses "Bid" of ZrDepth')

    def test_chinese_in_english(self):
        self.changed("en", **{"\u786e\u8ba4": ""})
        self.expect("texts", "has no translation")


class Report(unittest.TestCase):
    GOOD = {"seconds": 10.0, "messages_in": 5, "messages_lost": 0, "rows": 1, "updates_applied": 4, "frames": 3, "cpu_seconds": 1,
            "rss_mb": 90, "feed_to_model_us": {"p50": 1, "p99": 2, "max": 3}, "feed_to_pixel_us": {"p50": 1, "p99": 2, "max": 3},
            "plugins": [{"id": "blotter", "instance": "desk#blotter#_0", "rows": 1}]}

    def complaints(self, **changes):
        return list(importlib.import_module("check_report").complaints(json.loads(json.dumps({**self.GOOD, **changes}))))

    def test_good(self):
        self.assertEqual(self.complaints(), [])

    def test_lost_messages(self):
        self.assertEqual(self.complaints(messages_lost=2), ["2 messages were lost"])

    def test_nothing_painted(self):
        self.assertEqual(self.complaints(frames=0), ["frames is zero: nothing ran"])

    def test_no_plugin(self):
        self.assertEqual(self.complaints(plugins=[]), ["plugins is missing or empty: none was opened"])

    def test_plugin_without_rows(self):
        self.assertEqual(self.complaints(plugins=[{"id": "a", "instance": "desk#a#_0", "rows": 0}]), ["desk#a#_0 has no rows"])

    def test_missing_time(self):
        self.assertEqual(self.complaints(feed_to_pixel_us={"p50": 1, "max": 3}), ["feed_to_pixel_us.p99 is missing or no number"])


if __name__ == "__main__":
    unittest.main()
