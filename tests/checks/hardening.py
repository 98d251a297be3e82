#!/usr/bin/env python3
"""Fails when a library lacks the protection that it is built with: hardening.py LIBRARY..."""

import pathlib
import subprocess
import sys

PE_FLAGS = ("DYNAMIC_BASE", "NX_COMPAT", "HIGH_ENTROPY_VA")


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def elf_faults(library):
    symbols, dynamic = output("nm", "-D", library), output("readelf", "-dW", library)
    segments, code = output("readelf", "-lW", library), output("objdump", "-d", "-j", ".text", "--no-show-raw-insn", library)
    stack = next((line for line in segments.splitlines() if "GNU_STACK" in line), "")
    found = {
        "stack protector": "__stack_chk_fail" in symbols,
        "FORTIFY": "_chk@" in symbols.replace("__stack_chk_fail@", ""),
        "RELRO": "GNU_RELRO" in segments,
        "immediate binding": "NOW" in dynamic,
        "stack that cannot be executed": bool(stack) and "E" not in stack.split()[-2],
        "control-flow protection": code.count("endbr64") > 16,  # the start files of the compiler have a few
    }
    return [name for name, there in found.items() if not there]


def pe_faults(library):
    header = output("x86_64-w64-mingw32-objdump", "-p", library)
    return [flag for flag in PE_FLAGS if flag not in header]


def main(libraries):
    missing = False
    for library in libraries:
        is_elf = pathlib.Path(library).read_bytes()[:4] == b"\x7fELF"
        for fault in (elf_faults if is_elf else pe_faults)(library):
            print(f"{library} has no {fault}")
            missing = True
    return int(missing or not libraries)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
