#!/usr/bin/env python3
"""The calls of a library for an input, a frame and a segment, from traces of Wine's: see scripts/road.

  road_table.py IMAGE_BASE IMAGE_SIZE FOLDER
"""
import collections
import re
import sys

CALL = re.compile(rb"Call ([\w.]+\.\w+)\(.*ret=([0-9a-f]+)")
ALLOCATIONS = ("msvcrt.malloc", "msvcrt.calloc", "msvcrt.realloc", "ntdll.RtlAllocateHeap", "KERNEL32.HeapAlloc")
FRAMES = 20
SEGMENTS = 10


def calls_of(path, begin, end):
    counts = collections.Counter()
    with open(path, "rb") as trace:
        for line in trace:
            found = CALL.search(line)
            if found and begin <= int(found[2], 16) < end:
                counts[found[1].decode()] += 1
    return counts


def main():
    begin = int(sys.argv[1], 16)
    end = begin + int(sys.argv[2], 16)
    few, many, often, long, ageing, longer = (
        calls_of(f"{sys.argv[3]}/{name}.txt", begin, end)
        for name in ("few", "many", "often", "long", "ageing", "ageing-longer"))
    if not few:
        sys.exit("road: no call comes from the library; is it loaded at another place?")
    print("| Function | An input | A frame | A segment |\n|---|---|---|---|")
    for name in sorted(few | many | often | long):
        # Twenty frames more; one input more before each of twenty frames; ten segments more in each of
        # twenty-one: what happens only once falls out.
        an_input = (often[name] - few[name]) / FRAMES
        segment = (long[name] - few[name]) / (FRAMES + 1) / SEGMENTS
        frame = (many[name] - few[name]) / FRAMES - an_input - SEGMENTS * segment
        if any(abs(count) > 0.001 for count in (an_input, frame, segment)):
            print(f"| `{name}` | {an_input:g} | {frame:.3g} | {segment:.3g} |")
    allocations = sum(longer[name] - ageing[name] for name in ALLOCATIONS)
    print(f"\nAllocations in two hundred frames of two inputs each, while the ink of those before ages: {allocations}")


main()
