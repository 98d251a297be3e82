#!/usr/bin/env python3
"""Compares what the library exports with the list kept in the tree: exported_symbols.py LIBRARY LIST [--update]."""

import pathlib
import subprocess
import sys


def exported(library):
    """Out-of-line functions and data; what a compiler emits for inline functions varies and is left out."""
    lines = subprocess.run(["nm", "-DC", "--defined-only", library], check=True, capture_output=True, text=True).stdout
    symbols = (line.split(" ", 2) for line in lines.splitlines())
    return sorted({name for _, kind, name in symbols if kind in "TDBR"})


def main(library, listing, *options):
    now = exported(library)
    path = pathlib.Path(listing)
    if "--update" in options:
        path.write_text("\n".join(now) + "\n", encoding="utf-8")
        return 0
    kept = path.read_text(encoding="utf-8").splitlines()
    for name in sorted(set(now) - set(kept)):
        print(f"exported, but not in the list: {name}")
    for name in sorted(set(kept) - set(now)):
        print(f"in the list, but not exported: {name}")
    return int(now != kept)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
