#!/usr/bin/env bash
# Measures what the tests reach: lines and branches of ExPluginShell/, by wing and in total.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" = -h ] || [ "${1:-}" = --help ]; then
    cat <<'TEXT'
Usage: tools/coverage.sh [CTEST OPTION...]
Builds the preset "coverage", runs its tests and prints a table: lines and branches of each wing that were reached. Branches
that only an exception takes are not counted. With options, e.g. -R archive, it counts what those tests reach.
The figures of each file are left in build/coverage/coverage.json.
TEXT
    exit 0
fi

source tools/setup.sh
install_packages build test coverage
build coverage
find build/coverage -name '*.gcda' -delete
run_tests coverage "$@"
echo "== Counting"
# Threads count without locks, so that a count of a branch may be negative; such a line is left out.
gcovr --root . --filter ExPluginShell/ --object-directory build/coverage --exclude-throw-branches --gcov-ignore-parse-errors \
    --json-summary build/coverage/coverage.json -j "$(nproc)" build/coverage/ExPluginShell \
    >/dev/null 2>build/coverage/gcovr.log ||
    { tail -n 20 build/coverage/gcovr.log >&2; exit 1; }
python3 - build/coverage/coverage.json <<'PYTHON'
import collections
import json
import pathlib
import sys

library = "ExPluginShell/modules/utilsDll"
folders = collections.defaultdict(collections.Counter)
for file in json.loads(pathlib.Path(sys.argv[1]).read_text())["files"]:
    path = pathlib.PurePosixPath(file["filename"])
    if path.is_relative_to(library):
        inside = path.relative_to(library).parts
        name = inside[0] if len(inside) > 1 else "public headers"
    else:
        name = path.relative_to("ExPluginShell").parts[0].replace("modules", "loggerDll")
    for row in (name, "total"):
        folders[row].update({key: file[key] for key in ("line_covered", "line_total", "branch_covered", "branch_total")})

total = folders.pop("total")
print("| folder | lines | reached | branches | reached |\n|---|---|---|---|---|")
for name, count in [*sorted(folders.items()), ("total", total)]:
    cells = [name]
    for kind in ("line", "branch"):
        covered, all_of_them = count[f"{kind}_covered"], count[f"{kind}_total"]
        cells += [f"{all_of_them:,}", f"{100 * covered / all_of_them:.1f} %" if all_of_them else "-"]
    print(f"| {' | '.join(cells)} |")
PYTHON
