#!/usr/bin/env python3
"""Writes one calibration module NAME.caf, for example C36841a_000.caf.

usage: make_calibration_file.py OUTPUT

A module is a short header and a grid of radial distortion, vignetting and chromatic coefficients over focal length,
aperture and distance. It is scrambled: each byte is combined with a stream keyed by the module's own name, so that a
module copied to another name doesn't load. The coefficients are invented sample data.
"""

import hashlib
import math
import os
import struct
import sys
import zlib

MAGIC = b"TCAF"
FORMAT_VERSION = 5
FOCALS, APERTURES, DISTANCES = 9, 8, 12


def coefficients(name):
    """Smooth lens behaviour, shifted a little by the name so that two modules differ."""
    shift = zlib.crc32(name.encode()) / 2**32
    for focal in range(FOCALS):
        for aperture in range(APERTURES):
            for distance in range(DISTANCES):
                wide, open_, near = focal / (FOCALS - 1), aperture / (APERTURES - 1), distance / (DISTANCES - 1)
                barrel = -0.08 * (1 - wide) + 0.03 * wide + 0.01 * shift
                yield (barrel, barrel * barrel * (0.5 - near), 0.004 * math.pow(near, 3),      # distortion k1 k2 k3
                       -0.9 * math.pow(1 - open_, 2), 0.25 * (1 - open_), 0.05 * shift,        # vignetting v1 v2 v3
                       1 + 0.0004 * (wide - 0.5), 1 - 0.0003 * (wide - shift))                # red, blue scale


def scramble(data, name):
    stream = bytearray()
    block = hashlib.sha256(MAGIC + name.encode()).digest()
    while len(stream) < len(data):
        stream += block
        block = hashlib.sha256(block).digest()
    return bytes(a ^ b for a, b in zip(data, stream))


def module(name):
    # Whole millionths: the last digits of a power are not the same on every machine.
    grid = b"".join(struct.pack("<8i", *(round(value * 1_000_000) for value in point)) for point in coefficients(name))
    header = struct.pack("<HHHH", FORMAT_VERSION, FOCALS, APERTURES, DISTANCES) + name.encode().ljust(16, b"\0")
    body = header + struct.pack("<I", zlib.crc32(grid)) + grid
    return MAGIC + scramble(body, name)


def main():
    if len(sys.argv) != 2:
        raise SystemExit(__doc__)
    name = os.path.splitext(os.path.basename(sys.argv[1]))[0]
    with open(sys.argv[1], "wb") as file:
        file.write(module(name))


if __name__ == "__main__":
    main()
