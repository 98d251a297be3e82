#!/usr/bin/env python3
"""Compares the interface of a built library with the one kept in the tree.

  interface.py LIBRARY HEADERS KEPT [--update]

For Linux, LIBRARY has debug symbols and HEADERS is the folder of the installed headers: classes with their layout and their
virtual functions, functions and variables are compared (abidw, abidiff). For Windows, the names in the export table are.
With --update the file KEPT is written anew.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

KEPT = pathlib.Path(__file__).resolve().parent.parent / "interface"


def is_elf(library):
    return pathlib.Path(library).read_bytes()[:4] == b"\x7fELF"


def describe(library, headers, target):
    """Types that no installed header defines are left out, and so is what names a place on this machine."""
    options = ["--suppressions", KEPT / "others.suppr", "--headers-dir", headers, "--drop-private-types",
               "--exported-interfaces-only", "--no-corpus-path", "--no-comp-dir-path", "--no-show-locs", "--no-elf-needed",
               "--no-parameter-names", "--no-write-default-sizes", "--type-id-style", "hash"]
    subprocess.run(["abidw", *options, "--out-file", target, library], check=True)


def differences(kept, now):
    """What abidiff reports; every difference counts, also an addition."""
    result = subprocess.run(["abidiff", kept, now], capture_output=True, text=True)
    return result.stdout + result.stderr if result.returncode else ""


def exports(library):
    table = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", library], check=True, capture_output=True, text=True).stdout
    names = re.findall(r"^\s*\[ *\d+\] (\S+)$", table.split("[Ordinal/Name Pointer] Table", 1)[1], re.M)
    return "\n".join(sorted(names)) + "\n"


def export_differences(kept, now):
    before, after = set(kept.split()), set(now.split())
    lines = [f"not exported any more: {name}" for name in sorted(before - after)]
    lines += [f"exported, but not in the list: {name}" for name in sorted(after - before)]
    readable = subprocess.run(["c++filt", "--no-strip-underscore"], input="\n".join(lines), capture_output=True, text=True)
    return readable.stdout


def main(library, headers, kept, *options):
    kept = pathlib.Path(kept)
    with tempfile.TemporaryDirectory() as folder:
        now = pathlib.Path(folder) / "now"
        if is_elf(library):
            describe(library, headers, now)
        else:
            now.write_text(exports(library), encoding="utf-8")
        if "--update" in options:
            kept.write_bytes(now.read_bytes())
            return 0
        if is_elf(library):
            found = differences(kept, now)
        else:
            found = export_differences(kept.read_text(encoding="utf-8"), now.read_text(encoding="utf-8"))
    if found:
        print(found)
        print(f"The interface differs from {kept}: see CONTRIBUTING.md, Versions.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
