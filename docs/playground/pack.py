#!/usr/bin/python3
"""Packs the playground into one page that needs nothing beside it: pack.py ENGINE.wasm RECORDING.svc PAGE.html"""
import base64
import json
import pathlib
import sys

# In this order: a later one uses what an earlier one declares.
SCRIPTS = ["engine.js", "back_end.js", "clock.js", "pen.js", "player.js", "scene.js", "age_strip.js", "controls.js", "page.js"]
MOST_BYTES = 300_000


def points_of(recording):
    """[x, y, milliseconds, pressure] of an SVC recording whose y points upwards, from 0 on."""
    rows = [line.split() for line in recording.splitlines() if line and not line.startswith("#")][1:]
    rows = [[int(number) for number in row] for row in rows]
    left = min(row[0] for row in rows)
    top = max(row[1] for row in rows)
    return [[row[0] - left, top - row[1], row[2] - rows[0][2], row[6] if row[3] == 1 else 0] for row in rows]


def main(engine, recording, page):
    folder = pathlib.Path(__file__).parent
    data = [
        f'const engineBytes = "{base64.b64encode(pathlib.Path(engine).read_bytes()).decode()}";',
        f"const recording = {json.dumps(points_of(pathlib.Path(recording).read_text()), separators=(',', ':'))};",
    ]
    script = "\n".join(data + [(folder / name).read_text() for name in SCRIPTS])
    text = (folder / "index.html").read_text()
    text = text.replace("@STYLE@", (folder / "style.css").read_text()).replace("@SCRIPT@", script)
    size = len(text.encode())
    if size > MOST_BYTES:
        sys.exit(f"pack.py: the page has {size} bytes, more than {MOST_BYTES}")
    pathlib.Path(page).write_text(text)
    print(f"pack.py: the page has {size} bytes")


if __name__ == "__main__":
    main(*sys.argv[1:])
