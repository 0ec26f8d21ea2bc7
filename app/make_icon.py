#!/usr/bin/env python3
"""Draw the icon of the program and write it as tandem.ico beside this file.

A calendar sheet: three pips in its head for the three calendars, and below
them a sun and a moon that overlap, the one day they share.
"""

import math
import struct
import zlib
from pathlib import Path

SIZES = (16, 20, 24, 32, 40, 48, 64, 128, 256)
YELLOW = (240, 232, 0)   # the background of the window
BLUE = (34, 48, 148)     # light enough to show on a dark background
RED = (224, 44, 16)


# A shape is the distance from a point to its edge, in pixels and negative
# inside.  The edge is smooth because the last pixel of that distance fades.

def disc(x, y, cx, cy, r):
    return math.sqrt((x - cx) ** 2 + (y - cy) ** 2) - r


def box(x, y, left, top, right, bottom, r):
    dx = abs(x - (left + right) / 2) - (right - left) / 2 + r
    dy = abs(y - (top + bottom) / 2) - (bottom - top) / 2 + r
    return math.sqrt(max(dx, 0) ** 2 + max(dy, 0) ** 2) + min(max(dx, dy), 0) - r


def ray(x, y, turn, near, far, r):
    """A line with round ends that points away from the origin."""
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    along = min(max(x * c + y * s, near), far)
    return disc(x, y, along * c, along * s, r)


def cover(distance):  # how much of the pixel lies inside the shape, from 0 to 1
    return min(max(0.5 - distance, 0), 1)


def draw(n):
    """Return the rows of the icon, from the top, as lists of (r, g, b, a)."""
    # Every straight edge falls between two pixels: this keeps 16 and 20 sharp.
    margin, line, corner = n // 32, max(1, n // 32), n * 0.15
    end = n - margin
    head = margin + round(n / 4)
    high, low, pitch = margin + n // 16, head - n // 16, 2 * math.floor(n / 8 + 0.5)
    half = (low - high + 1) // 2      # half the width of a pip
    middle = (head + end - line) / 2

    def place(part):
        # The same fraction as the middle: a disc is then alike on its four sides.
        return round(n * part - middle % 1) + middle % 1

    def radius(part):
        return middle - round(middle - n * part)

    # Small rays would be only dirt around the sun.  Without them it is larger
    # and further left, so that the pair stays in the middle of the sheet.
    rays = (108, 144, 180, 216, 252) if n >= 48 else ()
    moon, moon_r = place(0.585 if rays else 0.56), radius(0.275)
    sun, sun_r = place(0.405 if rays else 0.365), radius(0.155 if rays else 0.175)
    gap = max(1.25, n * 0.05)
    rows = []
    for j in range(n):
        rows.append([])
        for i in range(n):
            x, y = i + 0.5, j + 0.5
            layers = [(YELLOW, max(head - y, box(x, y, margin + line, margin + line,
                                                 end - line, end - line, corner - line)))]
            for centre in (n / 2 - pitch, n / 2, n / 2 + pitch):
                layers.append((YELLOW, box(x, y, centre - half, high, centre + half, low,
                                           half / 2 if n >= 32 else 0)))
            layers.append((BLUE, max(disc(x, y, moon, middle, moon_r),
                                     -disc(x, y, sun, middle, sun_r + gap))))
            layers.append((RED, disc(x, y, sun, middle, sun_r)))
            for turn in rays:
                layers.append((RED, ray(x - sun, y - middle, turn, n * 0.21, n * 0.26, n * 0.02)))
            colour = BLUE
            for paint, distance in layers:
                part = cover(distance)
                colour = [a + (b - a) * part for a, b in zip(colour, paint)]
            alpha = round(255 * cover(box(x, y, margin, margin, end, end, corner)))
            rows[j].append((*map(round, colour), alpha) if alpha else (0, 0, 0, 0))
    return rows


def bitmap(rows):
    n = len(rows)
    data = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    # Readers without alpha take the mask: a bit is set where nothing is drawn.
    # A row of the mask fills whole groups of 32 bits, the rest being zero.
    width = (n + 31) // 32 * 32
    for row in reversed(rows):
        bits = sum(1 << (width - 1 - i) for i in range(n) if row[i][3] == 0)
        data += bits.to_bytes(width // 8, "big")
    # The height counts the picture and the mask.
    return struct.pack("<IiiHHIIiiII", 40, n, 2 * n, 1, 32, 0, len(data), 0, 0, 0, 0) + data


def png(rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    data = b"".join(b"\0" + b"".join(map(bytes, row)) for row in rows)
    header = struct.pack(">IIBBBBB", len(rows), len(rows), 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(data, 9)) + chunk(b"IEND", b""))


def icon():
    # Old readers know no PNG: only the sizes that would take much room are.
    images = [(png if n >= 64 else bitmap)(draw(n)) for n in SIZES]
    head = struct.pack("<HHH", 0, 1, len(SIZES))
    offset = len(head) + 16 * len(SIZES)
    for n, image in zip(SIZES, images):
        # A side of 256 is written as 0.
        head += struct.pack("<BBBBHHII", n % 256, n % 256, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    return head + b"".join(images)


if __name__ == "__main__":
    Path(__file__).with_name("tandem.ico").write_bytes(icon())
