#!/usr/bin/env python3
"""Checks the written form of the tree: see docs/style.md.

    style.py TOP-FOLDER

C++: braces round every branch, documentation as /// with \\tags, nested namespaces as A::B, string-based connections in the
library, no comment line with one or two words left in the middle of a paragraph. Every text: none of the words that
docs/style.md avoids.
"""

import pathlib
import re
import subprocess
import sys

AVOIDED = re.compile(r"(?<!\.)\b(tell|tells|told|the toolkit|toolkit's|elsewhere|whatever|all the same|nobody|somebody)\b", re.I)
QUOTES_THEM = {"docs/style.md", "tests/checks/style.py"}
PROSE = (".cpp", ".h", ".in", ".md", ".py", ".sh", ".cmake", ".txt", ".qss", ".supp", ".php")
LIBRARY = "ExPluginShell/modules/utilsDll/"
HAS_NO_SLOTS = {LIBRARY + "storage/Settings.cpp"}  # CSettings declares none, by contract
TAG = re.compile(r"@(?:param|return|brief|note|warning|sa|see|code|endcode|a|c|p)\b")


def tracked(top):
    names = subprocess.run(["git", "ls-files", "-z"], cwd=top, check=True, capture_output=True, text=True).stdout
    return [name for name in names.split("\0") if name and (top / name).is_file()]


def without_texts(code):
    """The code with blanks in place of comments and literals; every line keeps its number."""
    pattern = r'R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|//[^\n]*|/\*(?:.|\n)*?\*/|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*'
    return re.sub(pattern, lambda match: re.sub(r"[^\n]", " ", match.group()), code, flags=re.M)


def only_texts(code):
    """Comments and literals alone; blanks in place of everything else, so that places stay the same."""
    kept = without_texts(code)
    return "".join(was if now != was or was == "\n" else " " for was, now in zip(code, kept))


def closing(code, start):
    depth = 0
    for place in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place + 1
    return len(code)


def branches_without_braces(code):
    for match in re.finditer(r"\b(?:if(?: constexpr)?|for|while|switch)\s*(?=\()|\b(?:else|do)\b(?!\s*if\b)", code):
        after = closing(code, match.end()) if match.group()[0] not in "ed" else match.end()
        rest = code[after:].lstrip()
        ends_do = match.group().startswith("while") and rest.startswith(";") and code[: match.start()].rstrip().endswith("}")
        if not rest.startswith("{") and not ends_do:
            yield match.start(), "branch without braces"


def cpp_faults(name, text):
    code = without_texts(text)
    yield from branches_without_braces(code)
    for match in re.finditer(r"namespace \w+\s*\{\s*namespace \w+\s*\{", code):
        yield match.start(), "nested namespaces are written A::B"
    if name.startswith(LIBRARY) and name not in HAS_NO_SLOTS:
        for match in re.finditer(r"\bconnect\([^;]*?,\s*&\w+::\w+", code):
            yield match.start(), "connections in the library are string-based"
    for match in re.finditer(r"^[ \t]*(?:///?|\*).*", text, re.M):
        if TAG.search(match.group()):
            yield match.start(), "documentation tags are written \\tag"
    for match in re.finditer(r"^[ \t]*/\*\*", text, re.M):
        yield match.start(), "documentation is written as ///"
    prose = re.sub(r"\\code(?:.|\n)*?\\endcode", lambda match: re.sub(r"[^\n]", "x", match.group()), text)
    for match in re.finditer(r"^([ \t]*///?) [^\n]*[^\n.:]\n\1 (?![\\-])\S+(?: \S+)?\n(?=\1 [a-z])", prose, re.M):
        yield match.start(), "the second line of this comment holds one or two words"


def faults(top):
    for name in tracked(top):
        if not name.endswith(PROSE):
            continue
        text = (top / name).read_text(encoding="utf-8")
        found = list(cpp_faults(name, text)) if name.endswith((".cpp", ".h")) else []
        if name not in QUOTES_THEM:
            words = only_texts(text) if name.endswith((".cpp", ".h")) else text
            found += [(match.start(), f'"{match.group()}": see docs/style.md') for match in AVOIDED.finditer(words)]
        for place, what in sorted(found):
            yield f"{name}:{text.count(chr(10), 0, place) + 1}: {what}"


def main(top):
    found = list(faults(top))
    print("\n".join(found) or "the tree is written in one form")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
