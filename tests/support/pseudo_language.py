#!/usr/bin/env python3
"""Writes a catalogue of a pseudo-language: every text accented, longer, and in full-width brackets.

usage: pseudo_language.py LCONVERT OUTPUT.qm CATALOGUE...

The CATALOGUEs are .ts or .qm files; an English translation is used where one is present, the source text otherwise. A text
that is cut on screen lacks its closing bracket, and a text that isn't translated lacks both. Placeholders, mnemonics, line
feeds and tags stay as they are.
"""

import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

LETTERS = str.maketrans("AEIOUYaeiouycnsCNSZz", "ÅÉÎÖÛÝåéîöûýçñšÇÑŠŽž")
FIXED = re.compile(r"%L?\d+|%L?n|&\w+;|&(?=\w)|<[^>]+>|\n|\*\.\w+|\(\*[^)]*\)|;;")
PADDING = " ＬＯＮＧＥＲ ｔｅｘｔ"
# These are read as data, not shown.
WITHOUT_TEXTS = ("CLanguageManager", "CLanguageTest", "QLocale", "QShortcut", "QKeySequenceEdit")


def padding(length):
    """German and French double a word and lengthen a sentence by about a third."""
    wanted = max(3, length if length <= 10 else length // 2 if length <= 40 else length * 35 // 100)
    return (PADDING * (wanted // len(PADDING) + 1))[:wanted].rstrip()


def pseudo(text):
    pieces, last = [], 0
    for match in FIXED.finditer(text):
        pieces += [text[last:match.start()].translate(LETTERS), match.group()]
        last = match.end()
    body = "".join(pieces) + text[last:].translate(LETTERS)
    return f"［{body}{padding(len(FIXED.sub('', text)))}］"


def translate(message, english):
    translation = message.find("translation")
    forms = translation.findall("numerusform")
    source = message.findtext("source")
    for form in forms:
        form.text = pseudo(form.text if english and form.text else source)
    for extra in forms[2:]:
        translation.remove(extra)
    if not forms:
        translation.text = pseudo(translation.text if english and translation.text else source)
    translation.attrib.pop("type", None)


def read(lconvert, path, folder):
    """The catalogue as a tree; a compiled one is taken apart first."""
    if path.suffix == ".qm":
        converted = Path(folder) / (path.stem + ".ts")
        subprocess.run([lconvert, "-i", path, "-o", converted], check=True)
        path = converted
    return ElementTree.parse(path).getroot()


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    lconvert, output, catalogues = sys.argv[1], Path(sys.argv[2]), [Path(name) for name in sys.argv[3:]]
    whole = ElementTree.Element("TS", version="2.1", language="en_GB", sourcelanguage="en")
    with tempfile.TemporaryDirectory() as folder:
        for catalogue in catalogues:
            tree = read(lconvert, catalogue, folder)
            for context in tree.findall("context"):
                if context.findtext("name") in WITHOUT_TEXTS:
                    continue
                for message in context.findall("message"):
                    if message.findtext("source"):
                        translate(message, tree.get("language", "").startswith("en"))
                    else:
                        context.remove(message)
                whole.append(context)
        texts = Path(folder) / "pseudo.ts"
        ElementTree.ElementTree(whole).write(texts, encoding="utf-8", xml_declaration=True)
        subprocess.run([lconvert, "-i", texts, "-o", output], check=True)


if __name__ == "__main__":
    main()
