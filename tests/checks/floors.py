#!/usr/bin/env python3
"""Fails when a unit of the library includes one that stands on a higher floor, or another wing that it may not know."""

import pathlib
import re
import sys

FLOORS = [
    {"utilsdll_global", "ILoggerInterface", "Singleton"},
    {"Logging", "platform/*", "XmlBounds", "BuildIdentification"},
    {"StorageLocation", "ProcessInformation"},
    {"TemporarySettings"},
    {"Settings", "SuiteConfiguration"},
    {"ApplicationState"},
    {"LoggerStartup"},
]
WINGS = {
    "language": {"LanguageManager", "ErrStrings"},
    "asynchronous": {"DelayedCall", "Waiting", "ExcludeUserInpuEventLoop", "ScopedInputFilter", "RunnableItem",
                     "OperationCompletionWaiter"},
    "files": {"FileManagement", "FileSizes", "ArchiveCompression", "ArchiveExtraction", "ArchiveNames", "ArchivePacking",
              "ArchiveSource", "ArchiveTarget", "ExtractionFolder", "RawDeflater"},
    "look": {"ApplicationStyle", "customtolvanappstyle", "GuiUtils", "ToolDrawing", "ImageComparison", "Geometry",
             "BaseDialog", "MessageBox", "AboutDlg", "NativeDialogs", "controls/*"},
    "soap": {"soap/*"},
}
UMBRELLAS = {"SharedUtils"}  # included by hosts, never by the library itself


def place(unit):
    """Floor number and wing of a unit; None for one that stands in no list."""
    names = {unit, unit.split("/")[0] + "/*"}
    for number, floor in enumerate(FLOORS):
        if names & floor:
            return number, None
    for wing, units in WINGS.items():
        if names & units:
            return len(FLOORS), wing
    return None


def unit_of(path):
    return re.sub(r"(_win|_unix)?\.(h|cpp)$", "", path)


def main(root):
    faults = []
    sources = [p for p in sorted(root.rglob("*")) if p.suffix in (".h", ".cpp") and "resources" not in p.parts]
    for source in sources:
        name = source.relative_to(root).as_posix()
        unit = unit_of(name)
        if unit in UMBRELLAS:
            continue
        if not place(unit):
            faults.append(f"{name} stands on no floor and in no wing: name it in this check")
            continue
        floor, wing = place(unit)
        for include in re.findall(r'^\s*#include ["<](?:utilsDll/)?([^">]+)[">]', source.read_text(encoding="utf-8"), re.M):
            beside = (source.parent / include).resolve()
            inside = beside if beside.exists() else (root / include).resolve()
            if not inside.exists():
                continue  # generated
            included = unit_of(inside.relative_to(root.resolve()).as_posix())
            if included in UMBRELLAS:
                faults.append(f"{name} includes the umbrella header {include}")
                continue
            other_floor, other_wing = place(included) or (floor, wing)
            if other_floor > floor:
                faults.append(f"{name} (floor {floor}) includes {include} (floor {other_floor})")
            elif other_floor == floor == len(FLOORS) and wing != other_wing:
                faults.append(f"{name} (wing {wing}) includes {include} (wing {other_wing})")
    print("\n".join(faults) or f"{len(sources)} files, every include points down or sideways")
    return 1 if faults or not sources else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
