#!/usr/bin/env python3
"""Checks that the library is built as its lists say.

    house.py LIBRARY-FOLDER

Each wing's CMakeLists.txt names its units and the wings it may include. This check fails when a file includes a unit of
another wing, or, in a wing whose units stand IN_ORDER, one named later; when two wings know each other; when something
other than a public header lies in the top folder; and when a unit has no row in README.md or a row has no unit.
"""

import pathlib
import re
import sys

KEYWORDS = ("IN_ORDER", "KNOWS", "UNITS", "PUBLIC", "UMBRELLAS")


class Wing:
    def __init__(self, folder):
        text = (folder / "CMakeLists.txt").read_text(encoding="utf-8")
        call = re.search(r"tolvan_add_wing\(([^)]*)\)", text)
        lists = {keyword: [] for keyword in KEYWORDS}
        keyword = None
        for word in re.sub(r"#.*", "", call.group(1)).split():
            if word in KEYWORDS:
                keyword = word
            else:
                lists[keyword].append(word)
        self.name = folder.name
        self.in_order = "IN_ORDER" in call.group(1).split()
        self.knows, self.umbrellas = lists["KNOWS"], lists["UMBRELLAS"]
        self.units = lists["UNITS"] + lists["PUBLIC"]


def wings_of(root):
    return [Wing(path.parent) for path in sorted(root.glob("*/CMakeLists.txt")) if path.parent.name != "resources"]


def unit_of(path):
    return re.sub(r"((_win|_unix)?\.cpp|\.h)$", "", path.name)


def include_faults(root, wings):
    home = {unit: wing for wing in wings for unit in wing.units}
    umbrellas = {unit for wing in wings for unit in wing.umbrellas}
    for source in sorted(path for path in root.rglob("*") if path.suffix in (".h", ".cpp") and "resources" not in path.parts):
        name, unit = source.relative_to(root).as_posix(), unit_of(source)
        if unit in umbrellas:
            continue
        wing = home.get(unit)
        if not wing:
            yield f"{name} belongs to no unit"
            continue
        for include in re.findall(r'^\s*#include ["<](?:utilsDll/)?([^">]+)[">]', source.read_text(encoding="utf-8"), re.M):
            if not ((source.parent / include).exists() or (root / include).exists()):
                continue  # generated, or another library's
            other = unit_of(pathlib.Path(include))
            if other in umbrellas:
                yield f"{name} includes the umbrella header {include}"
            elif other not in home:
                yield f"{name} includes {include}, which belongs to no unit"
            elif home[other] is not wing:
                if home[other].name not in wing.knows:
                    yield f"{name} includes {include}, but the wing {wing.name} does not know {home[other].name}"
            elif wing.in_order and wing.units.index(other) > wing.units.index(unit):
                yield f"{name} includes {include}, which is named later in {wing.name}/CMakeLists.txt"


def circle_faults(wings):
    """Taking away, again and again, the wings that know only wings taken before must leave none."""
    left = {wing.name: set(wing.knows) for wing in wings}
    while free := [name for name, knows in left.items() if not knows & left.keys()]:
        for name in free:
            del left[name]
    if left:
        yield f"wings that know each other: {', '.join(sorted(left))}"


def front_faults(root):
    for path in sorted(root.iterdir()):
        if path.is_file() and path.suffix != ".h" and path.name not in ("CMakeLists.txt", "README.md"):
            yield f"{path.name} lies in the top folder, which holds public headers only"


def readme_faults(root, wings):
    rows = re.findall(r"^\| (`.+?) \|", (root / "README.md").read_text(encoding="utf-8"), re.M)
    shown = {name for row in rows for name in re.findall(r"`([^`]+)`", row)}
    forwarding = {path.name for path in root.glob("*/*") if path.is_file() and not path.suffix}
    named = {unit for wing in wings for unit in wing.units + wing.umbrellas} - forwarding
    yield from (f"README.md has no row for {unit}" for unit in sorted(named - shown))
    yield from (f"README.md has a row for {unit}, which no wing names" for unit in sorted(shown - named))


def main(root):
    wings = wings_of(root)
    faults = [*include_faults(root, wings), *circle_faults(wings), *front_faults(root), *readme_faults(root, wings)]
    units = sum(len(wing.units) for wing in wings)
    print("\n".join(faults) or f"{units} units in {len(wings)} wings: every include and every row of the table is as it should be")
    return 1 if faults or not units else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
