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

# Every language with the number of its plural forms.
LANGUAGES = {"de": 2, "en": 2, "fr": 2, "ja": 1, "zh-CN": 1}


def sources(folder):
    return sorted(str(path) for suffix in ("*.cpp", "*.h") for path in folder.rglob(suffix))


def messages(path):
    """Each text with its state and its translations: one, or the plural forms."""
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.findall("numerusform")]
            numbered = message.get("numerus") == "yes"
            yield (context.findtext("name"), message.findtext("source"), translation.get("type"), numbered,
                   forms or [translation.text or ""])


def placeholders(text):
    return set(re.findall(r"%\d|%n", text))


def problem_of(source, translation, language):
    """What is wrong with one translation, or nothing."""
    if not translation.strip():
        return "has an empty translation"
    if placeholders(source) != placeholders(translation):
        return "does not keep the placeholders"
    if source.endswith(".") and not translation.endswith((".", "。")):
        return "does not end as a sentence"
    if language == "fr" and re.search(" [:;?!»]|« ", translation):
        return "may break before its punctuation: no-break space"
    if language in ("ja", "zh-CN") and re.search(r"[^\x00-\x7f][:,;?!]", translation):
        return "has half-width punctuation after a full-width character"
    return None


def problems_of(path):
    language = path.stem.removeprefix("tolvan_")
    for context, source, state, numbered, translations in messages(path):
        name = f"{path.name}: {context}: \"{source}\""
        if state:
            yield f"{name} is {state}"  # unfinished: also a text that is missing from the file; vanished, obsolete
        elif numbered and len(translations) != LANGUAGES[language]:
            yield f"{name} has {len(translations)} plural forms instead of {LANGUAGES[language]}"
        else:
            found = (problem_of(source, translation, language) for translation in translations)
            yield from (f"{name} {problem}" for problem in found if problem)


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
