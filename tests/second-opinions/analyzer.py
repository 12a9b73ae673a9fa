#!/usr/bin/env python3
"""GCC's analyser over portable C and C++: analyzer.py BUILD-FOLDER [FOLDER...] prints each finding that analyzer.txt does not
name, and each that it names and that is found no more. Of the folders' files those are looked at that the build folder compiles."""
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
# The analyser follows these libraries of headers for minutes and takes gigabytes.
TOO_LARGE = re.compile(r'#include ("settings/json_object.h"|<CLI/CLI.hpp>|<nlohmann/)')


def commands(build, folders):
    """What compiles each file once, without its output."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        path = pathlib.Path(entry["file"]).resolve()
        name = str(path.relative_to(ROOT)) if path.is_relative_to(ROOT) else ""
        if any(name.startswith(folder + "/") for folder in folders) and not TOO_LARGE.search(path.read_text(encoding="utf-8")):
            words = shlex.split(entry["command"])
            if os.path.basename(words[0]) == "ccache":
                words = words[1:]
            words[words.index("-o") + 1] = os.devnull
            found[name] = (words, entry["directory"])
    return found


def findings(command):
    words, folder = command
    options = ["-fanalyzer", "-Wno-error", "-fdiagnostics-path-format=none", "-fno-diagnostics-show-caret"]
    done = subprocess.run(words + options, cwd=folder, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise SystemExit(done.stderr)
    return re.findall(r"warning: (.*) \[(-Wanalyzer-[a-z-]+)\]", done.stderr)


def main(build, folders):
    known = set()
    for line in (ROOT / "tests/second-opinions/analyzer.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            known.add(tuple(line.split()))
    looked = commands(pathlib.Path(build), folders)
    if not looked:
        raise SystemExit("no file to look at")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = dict(zip(looked, pool.map(findings, looked.values())))
    found = {(name, kind): text for name, result in results.items() for text, kind in result}
    failures = 0
    for (name, kind), text in found.items():
        if (name, kind) not in known:
            failures += 1
            print(f"{name}: {text} [{kind}]")
    for name, kind in sorted(known - set(found)):
        if name in looked:
            failures += 1
            print(f"{name}: {kind} is known and found no more")
    print(f"{len(looked)} files, {len(found)} kinds of findings in them, {failures} to be looked at")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2:]))
