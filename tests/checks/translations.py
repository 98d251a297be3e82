#!/usr/bin/env python3
"""Compares the translation sources with the texts of the library: every text is translated in every language, and every
translation has its text.

usage: translations.py LUPDATE TRANSLATIONS-FOLDER SOURCE-FOLDER

To bring the files up to date after a text has changed, run
    lupdate -locations none -no-ui-lines -I SOURCE-FOLDER SOURCE-FOLDER -ts TRANSLATIONS-FOLDER/*.ts
and translate the unfinished texts.
"""

import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

LANGUAGES = ("de", "en", "fr", "ja", "zh-CN")


def sources(folder):
    return sorted(str(path) for suffix in ("*.cpp", "*.h") for path in folder.rglob(suffix))


def messages(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            yield context.findtext("name"), message.findtext("source"), translation.get("type"), translation.text or ""


def problems_of(path):
    for context, source, state, translation in messages(path):
        name = f"{path.name}: {context}: \"{source}\""
        if state:
            yield f"{name} is {state}"  # unfinished: also a text that is missing from the file; vanished, obsolete
        elif not translation.strip():
            yield f"{name} has an empty translation"
        elif set(re.findall(r"%\d", source)) != set(re.findall(r"%\d", translation)):
            yield f"{name} does not keep the placeholders"
        elif source.endswith(".") and not translation.endswith((".", "。")):
            yield f"{name} does not end as a sentence"
        elif path.stem.endswith("_fr") and re.search(" [:;?!»]|« ", translation):
            yield f"{name} may break before its punctuation: no-break space"


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    lupdate, translations, library = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
    problems = []
    with tempfile.TemporaryDirectory() as folder:
        copies = [shutil.copy(translations / f"tolvan_{language}.ts", folder) for language in LANGUAGES]
        subprocess.run([lupdate, "-silent", "-locations", "none", "-no-ui-lines", "-I", str(library), *sources(library), "-ts", *copies],
                       check=True)
        for copy in map(Path, copies):
            if sum(1 for _ in messages(copy)) == 0:
                problems.append(f"{copy.name} holds no text")
            problems += problems_of(copy)
    if problems:
        sys.exit("check_translations: " + "\ncheck_translations: ".join(problems))


if __name__ == "__main__":
    main()
