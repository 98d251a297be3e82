#!/usr/bin/env python3
"""Runs clang-tidy over the sources of ExPluginShell/ that a Clang build knows: tidy.py BUILD-FOLDER [CLANG-TIDY OPTION...]

Most of the time goes into Qt's headers, so sources that are compiled alike are checked several at a time, as one source that
includes them. Where names clash in such a group, its halves are checked.
"""

import concurrent.futures
import json
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

SOURCES = pathlib.Path(__file__).resolve().parent.parent / "ExPluginShell"
GROUP = 13  # sources checked at a time


def options_of(entry):
    words = shlex.split(entry["command"])[1:]
    return words[: words.index("-o")]


def groups_of(database):
    """Yields (options, sources). Neighbours, which use the same names more often, go to different groups."""
    alike = {}
    for entry in database:
        alike.setdefault(tuple(options_of(entry)), []).append(entry["file"])
    for options, sources in alike.items():
        count = -(-len(sources) // GROUP)
        for first in range(count):
            yield options, sources[first::count]


def check(options, source, more):
    command = ["clang-tidy", "--quiet", "--warnings-as-errors=*", *more, source, "--", *options, "-Wno-shadow"]
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return done.returncode, done.stdout or (done.stderr if done.returncode else "")


def check_group(file, options, sources, more):
    file.write_text("".join(f'#include "{source}"\n' for source in sources))
    together = check(options, str(file), more)
    if len(sources) == 1 or "[clang-diagnostic-error" not in together[1]:
        return [together]
    return [report for half in (sources[::2], sources[1::2]) for report in check_group(file, options, half, more)]


def main(build, *more):
    database = json.loads(pathlib.Path(build, "compile_commands.json").read_text(encoding="utf-8"))
    groups = list(groups_of(entry for entry in database if pathlib.Path(entry["file"]).is_relative_to(SOURCES)))
    if not groups:
        sys.exit(f"tidy: {build} knows no source of {SOURCES}")
    failed = False
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        # clang-tidy looks for its configuration beside the source and above.
        shutil.copy(SOURCES.parent / ".clang-tidy", folder)
        jobs = [pool.submit(check_group, pathlib.Path(folder, f"group{number}.cpp"), *group, more)
                for number, group in enumerate(groups)]
        for job in jobs:
            for code, report in job.result():
                failed = failed or code != 0
                print(report, end="")
    print(f"tidy: {sum(len(sources) for _, sources in groups)} sources")
    sys.exit(failed)


if __name__ == "__main__":
    main(*sys.argv[1:])
