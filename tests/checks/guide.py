#!/usr/bin/env python3
"""Compares the programs in README and the pages of the guide with those in examples/: guide.py TOP-FOLDER [--update]

A block of code behind the line "<!-- PATH -->" is the text of that file.
"""

import pathlib
import re
import sys

BLOCK = re.compile(r"(<!-- (\S+) -->\n```\w+\n)(.*?)(```)", re.S)


def main(top, *options):
    pages = [top / "README.md", *sorted((top / "docs/guide").glob("*.md"))]
    blocks, faults = 0, []
    for page in pages:
        text = page.read_text(encoding="utf-8")
        blocks += len(BLOCK.findall(text))
        now = BLOCK.sub(lambda match: match[1] + (top / match[2]).read_text(encoding="utf-8") + match[4], text)
        if "--update" in options:
            page.write_text(now, encoding="utf-8")
        elif now != text:
            faults.append(f"{page.relative_to(top)} does not show its program; run guide.py {top} --update")
    print("\n".join(faults) or f"{blocks} programs in {len(pages)} pages")
    return 1 if faults or not blocks else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), *sys.argv[2:]))
