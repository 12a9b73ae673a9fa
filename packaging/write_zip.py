"""Packs a folder so that equal files make equal bytes: write_zip.py FOLDER NAME ZIP

NAME is the one folder that the ZIP holds. Names are sorted, owners and rights left out; every file has the time that
SOURCE_DATE_EPOCH says, or the earliest that a ZIP knows.
"""
import os
import sys
import time
import zipfile
from pathlib import Path

EARLIEST = (1980, 1, 1, 0, 0, 0)


def main(folder, name, target):
    moment = max(EARLIEST, time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", 0)))[:6])
    files = sorted(path.relative_to(folder).as_posix() for path in Path(folder).rglob("*") if path.is_file())
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for file in files:
            entry = zipfile.ZipInfo(f"{name}/{file}", moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0  # the system of the ZIP's users, which has no rights to note
            packed.writestr(entry, (Path(folder) / file).read_bytes())


if __name__ == "__main__":
    main(*sys.argv[1:])
