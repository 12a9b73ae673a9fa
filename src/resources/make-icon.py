#!/usr/bin/env python3
"""Draws lumora.ico beside itself: a pen's stroke that fades along its tail. Run it without arguments."""

import math
import pathlib
import struct
import zlib

# The smallest first: a program that asks for no size gets the first picture, and the tray is the one that does.
SIZES = (16, 20, 24, 32, 48, 256)
COLOUR = (0xF2, 0x5C, 0x1E)  # halfway between a light and a dark task bar

# The stroke from its tail to its head, as two joined cubic curves in a square of side 1.
CURVES = (
    ((0.10, 0.80), (0.20, 0.42), (0.44, 0.34), (0.42, 0.59)),
    ((0.42, 0.59), (0.40, 0.90), (0.66, 0.84), (0.85, 0.21)),
)
POINTS_PER_CURVE = 96
TAIL_RADIUS, HEAD_RADIUS = 0.045, 0.105
TAIL_ALPHA = 0.25


def curve_point(curve, t):
    weights = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t**3)
    return tuple(sum(w * p[axis] for w, p in zip(weights, curve)) for axis in (0, 1))


def stroke_points(size):
    """Points along the stroke in pixels: x, y, radius, alpha. Small pictures get a wider and fuller stroke."""
    places = [curve_point(curve, i / POINTS_PER_CURVE) for curve in CURVES for i in range(POINTS_PER_CURVE)]
    places.append(CURVES[-1][-1])
    emphasis = min(1.0, 16 / size)
    points = []
    for i, (x, y) in enumerate(places):
        along = i / (len(places) - 1)
        radius = TAIL_RADIUS + (HEAD_RADIUS - TAIL_RADIUS) * along + 0.02 * emphasis
        fade = TAIL_ALPHA + (1 - TAIL_ALPHA) * min(1.0, along * (1.25 + 0.2 * emphasis))
        points.append((x * size, y * size, radius * size, fade))
    return points


def draw(size):
    """Rows of RGBA pixels; a pixel takes the strongest of the round dabs that cover it."""
    rows = []
    points = stroke_points(size)
    for y in range(size):
        row = bytearray()
        for x in range(size):
            alpha = 0.0
            for px, py, radius, fade in points:
                coverage = radius - math.hypot(x + 0.5 - px, y + 0.5 - py) + 0.5
                alpha = max(alpha, fade * min(1.0, max(0.0, coverage)))
            row += bytes((*COLOUR, round(255 * alpha)))
        rows.append(bytes(row))
    return rows


def as_bitmap(size, rows):
    """A bitmap as icons hold it: bottom row first, blue before red, then a mask that says nothing."""
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = bytearray()
    for row in reversed(rows):
        for x in range(0, len(row), 4):
            red, green, blue, alpha = row[x : x + 4]
            pixels += bytes((blue, green, red, alpha))
    mask = bytes((size + 31) // 32 * 4 * size)
    return header + pixels + mask


def as_png(size, rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", pixels) + chunk(b"IEND", b"")


def icon_file():
    pictures = []
    for size in SIZES:
        rows = draw(size)
        pictures.append(as_png(size, rows) if size == 256 else as_bitmap(size, rows))
    directory = struct.pack("<HHH", 0, 1, len(SIZES))
    offset = len(directory) + 16 * len(SIZES)
    for size, picture in zip(SIZES, pictures):
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(picture), offset)
        offset += len(picture)
    return directory + b"".join(pictures)


if __name__ == "__main__":
    pathlib.Path(__file__).with_name("lumora.ico").write_bytes(icon_file())
