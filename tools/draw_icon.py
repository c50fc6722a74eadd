#!/usr/bin/env python3
"""Draws the program's icon, a handset on an address card, in all its sizes: draw_icon.py FILE.ico

Run by hand when the drawing changes; the icon itself is in the tree."""
import math
import struct
import sys
import zlib

SIZES = (16, 20, 24, 32, 40, 48, 64, 256)
SAMPLES = 6  # per pixel and direction
CARD, EDGE, WHITE = (37, 99, 167), (24, 72, 128), (255, 255, 255)


def rounded(x, y, left, top, right, bottom, radius):
    dx = max(left + radius - x, x - (right - radius), 0)
    dy = max(top + radius - y, y - (bottom - radius), 0)
    return left <= x <= right and top <= y <= bottom and math.hypot(dx, dy) <= radius


def handset(x, y, centre_x, centre_y, scale):
    """A receiver, drawn lying and turned so that it stands aslant."""
    dx, dy = (x - centre_x) / scale, (y - centre_y) / scale
    along, across = (dx - dy) * math.sqrt(0.5), (dx + dy) * math.sqrt(0.5)
    bow = across - 0.25 * along * along
    handle = abs(along) <= 0.42 and -0.13 <= bow <= 0.05
    ends = rounded(abs(along), across, 0.26, -0.1, 0.5, 0.24, 0.07)
    return handle or ends


def color_at(x, y, size):
    pixel = 1 / size
    inset = max(pixel, 0.03)
    top = round(0.12 * size) * pixel
    if not rounded(x, y, inset, top, 1 - inset, 1 - top, 0.1):
        return None
    if size <= 24:
        if handset(x, y, 0.36, 0.5, 0.62):
            return WHITE
    elif handset(x, y, 0.34, 0.5, 0.56):
        return WHITE
    for line in range(3):  # name, number, address
        start = round((0.3 + 0.16 * line) * size) * pixel
        left = round((0.68 if line == 0 or size <= 24 else 0.62) * size) * pixel
        bottom = start + max(round(0.07 * size), 1) * pixel
        if start <= y < bottom and left <= x <= 1 - inset - 2 * max(pixel, 0.03):
            return WHITE
    border = max(pixel, 0.02)
    inner = rounded(x, y, inset + border, top + border, 1 - inset - border, 1 - top - border, 0.09)
    return CARD if inner else EDGE


def draw(size):
    """Rows from the top, four bytes (red, green, blue, opacity) per pixel."""
    rows = []
    for row in range(size):
        line = bytearray()
        for column in range(size):
            seen = [color_at((column + (i + 0.5) / SAMPLES) / size,
                             (row + (k + 0.5) / SAMPLES) / size, size)
                    for i in range(SAMPLES) for k in range(SAMPLES)]
            hits = [c for c in seen if c]
            line += bytes(sum(c[i] for c in hits) // len(hits) if hits else 0 for i in range(3))
            line.append(255 * len(hits) // len(seen))
        rows.append(bytes(line))
    return rows


def bitmap(rows):
    size = len(rows)
    head = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = b"".join(bytes((r[i + 2], r[i + 1], r[i], r[i + 3]))
                      for r in reversed(rows) for i in range(0, 4 * size, 4))
    return head + pixels + bytes((size + 31) // 32 * 4 * size)


def png(rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    size = len(rows)
    head = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


images = [png(draw(s)) if s == 256 else bitmap(draw(s)) for s in SIZES]
offset = 6 + 16 * len(SIZES)
directory = struct.pack("<HHH", 0, 1, len(SIZES))
for size, image in zip(SIZES, images):
    directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(image), offset)
    offset += len(image)
with open(sys.argv[1], "wb") as file:
    file.write(directory + b"".join(images))
