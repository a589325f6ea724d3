#!/usr/bin/env python3
"""Checks a run report of the workstation: complete, nothing lost, something shown."""
import json
import sys

PLAIN = ["seconds", "messages_in", "messages_lost", "rows", "updates_applied", "frames", "cpu_seconds", "rss_mb"]
TIMES = ["feed_to_model_us", "feed_to_pixel_us"]


def complaints(report):
    for key in PLAIN:
        if not isinstance(report.get(key), (int, float)):
            yield f"{key} is missing or no number"
    for key in TIMES:
        for part in ("p50", "p99", "max"):
            if not isinstance(report.get(key, {}).get(part), (int, float)):
                yield f"{key}.{part} is missing or no number"
    if report.get("messages_lost") != 0:
        yield f"{report.get('messages_lost')} messages were lost"
    for key in ("messages_in", "rows", "updates_applied", "frames"):
        if not report.get(key):
            yield f"{key} is zero: nothing ran"
    plugins = report.get("plugins")
    if not isinstance(plugins, list) or not plugins:
        yield "plugins is missing or empty: none was opened"
    else:
        yield from (f"{plugin.get('instance')} has no rows" for plugin in plugins if not plugin.get("rows"))


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        found = list(complaints(json.load(file)))
    for line in found:
        print(f"{sys.argv[1]}: {line}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
