#!/usr/bin/env python3
"""Writes the product's icons as SVG files, and renders the application icon.

    make_icons.py --out DIR          the images, in their folders below DIR
    make_icons.py --list             the relative paths of the images, one per line
    make_icons.py --logo-out DIR     the application icon as logo_16.png ... logo_1024.png (needs rsvg-convert)

A file that already has the right content is left untouched. The output depends only on the sources.
"""

import argparse
import os
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from iconkit import family, palette  # noqa: E402  (the switch above has to come first)

LOGO_FOLDER = palette.RESOURCES / "app_icon"
# Below 48 pixels the master's details fall between the pixels; those two sizes have drawings of their own.
LOGOS = {16: "trelio_frame_16.svg", 32: "trelio_frame_32.svg",
         **dict.fromkeys((48, 96, 128, 256, 512, 1024), "trelio_frame.svg")}


def replace_if_changed(path, content):
    """Writes the bytes whole or not at all; returns whether the file changed."""
    if path.is_file() and path.read_bytes() == content:
        return False
    path.parent.mkdir(parents=True, exist_ok=True)
    temporary = path.with_name(path.name + ".new")
    temporary.write_bytes(content)
    os.replace(temporary, path)
    return True


def write_icons(folder):
    changed = sum(replace_if_changed(folder / name, text.encode()) for name, text in family.build().items())
    print(f"icons: {changed} written to {folder}")


def write_logos(folder):
    for size, source in LOGOS.items():
        command = ["rsvg-convert", "--width", str(size), "--height", str(size), str(LOGO_FOLDER / source)]
        picture = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
        replace_if_changed(folder / f"logo_{size}.png", picture)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--out", type=Path, metavar="DIR")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--logo-out", type=Path, metavar="DIR")
    arguments = parser.parse_args()
    if not (arguments.out or arguments.list or arguments.logo_out):
        parser.error("nothing to do: give --out, --list or --logo-out")
    if arguments.list:
        print("\n".join(family.build()))
    if arguments.out:
        write_icons(arguments.out)
    if arguments.logo_out:
        write_logos(arguments.logo_out)


if __name__ == "__main__":
    try:
        main()
    except (ValueError, OSError, subprocess.CalledProcessError) as error:
        sys.exit(f"make_icons.py: {error}")
