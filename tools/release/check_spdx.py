#!/usr/bin/env python3
"""Checks the SPDX list of a release against the rules of SPDX 2.3 (tag-value form): check_spdx.py LIST FILES

FILES is the folder of the release: each of its files has to be listed with its checksum.
"""

import hashlib
import pathlib
import re
import sys

NO_LICENCE = "NONE|NOASSERTION"
IDENTIFIER = r"SPDXRef-[A-Za-z0-9.-]+"
# For each section, by the tag that opens it: its tags, with the form of the value and whether it has to be there.
SECTIONS = {
    "SPDXVersion": {
        "SPDXVersion": ("SPDX-2.3", True),
        "DataLicense": (r"CC0-1\.0", True),
        "SPDXID": ("SPDXRef-DOCUMENT", True),
        "DocumentName": (".+", True),
        "DocumentNamespace": (r"[a-z]+:[^#\s]+", True),
        "Creator": (r"(Tool: \S+-[0-9.]+|Organization: .+|Person: .+)", True),
        "Created": (r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", True),
    },
    "FileName": {
        "FileName": (r"\./.+", True),
        "SPDXID": (IDENTIFIER, True),
        "FileChecksum": ("SHA1: [0-9a-f]{40}|SHA256: [0-9a-f]{64}", True),
        "LicenseConcluded": (NO_LICENCE, False),
        "LicenseInfoInFile": (NO_LICENCE, False),
        "FileCopyrightText": (NO_LICENCE, False),
    },
    "PackageName": {
        "PackageName": (".+", True),
        "SPDXID": (IDENTIFIER, True),
        "PackageVersion": (".+", False),
        "PackageDownloadLocation": (NO_LICENCE, True),
        "FilesAnalyzed": ("false", True),
        "PackageLicenseConcluded": (NO_LICENCE, False),
        "PackageLicenseDeclared": (NO_LICENCE, False),
        "PackageLicenseComments": ("<text>[^<>]*</text>", False),
        "PackageCopyrightText": (NO_LICENCE, False),
    },
}
# A package whose files are not analysed must not contain any: CONTAINS is no choice here.
RELATIONSHIP = rf"({IDENTIFIER}) (DESCRIBES|DEPENDS_ON) ({IDENTIFIER})"


def sections_of(lines):
    """Returns the sections in order, each as a list of (tag, value), and the relationships."""
    sections, relationships = [], []
    for line in filter(None, lines):
        tag, _, value = line.partition(": ")
        if tag == "Relationship":
            relationships.append(value)
            continue
        if tag in SECTIONS:
            sections.append([])
        sections[-1].append((tag, value))
    return sections, relationships


def faults_of_section(section):
    opening, name = section[0]
    rules = SECTIONS[opening]
    for tag, value in section:
        if tag not in rules:
            yield f"{name}: {tag} does not belong to this section"
        elif not re.fullmatch(rules[tag][0], value):
            yield f"{name}: {tag} has the value '{value}'"
    present = [tag for tag, _ in section]
    for tag, (_, required) in rules.items():
        if required and tag not in present:
            yield f"{name}: {tag} is missing"
        if present.count(tag) > 1 and tag != "FileChecksum":
            yield f"{name}: {tag} stands more than once"
    if opening == "FileName" and not any(value.startswith("SHA1: ") for _, value in section):
        yield f"{name}: the SHA1 checksum, which every file needs, is missing"


def faults(lines, folder):
    sections, relationships = sections_of(lines)
    openings = [section[0][0] for section in sections]
    if openings != sorted(openings, key=["SPDXVersion", "FileName", "PackageName"].index) or openings.count("SPDXVersion") != 1:
        yield "the document, its files and the packages have to stand in this order: a file belongs to the package before it"
    for section in sections:
        yield from faults_of_section(section)
    identifiers = [value for section in sections for tag, value in section if tag == "SPDXID"]
    yield from (f"{name}: stands for several elements" for name in set(identifiers) if identifiers.count(name) > 1)
    related = [re.fullmatch(RELATIONSHIP, text) for text in relationships]
    yield from (f"unknown relationship '{text}'" for text, match in zip(relationships, related) if not match)
    for match in filter(None, related):
        yield from (f"'{match[0]}': no element has the identifier {name}" for name in (match[1], match[3]) if name not in identifiers)
    if not any(match and match[1] == "SPDXRef-DOCUMENT" and match[2] == "DESCRIBES" for match in related):
        yield "the document describes no package"
    listed = {dict(section)["FileName"]: section for section in sections if section[0][0] == "FileName"}
    for path in sorted(pathlib.Path(folder).glob("*")):
        if path.name.endswith(".spdx") or path.name == "SHA256SUMS":
            continue
        digest = hashlib.sha256(path.read_bytes()).hexdigest()
        if ("FileChecksum", f"SHA256: {digest}") not in listed.get(f"./{path.name}", []):
            yield f"{path.name}: is not listed with its checksum"


def main(path, folder):
    lines = pathlib.Path(path).read_text(encoding="utf-8").splitlines()
    found = list(faults(lines, folder))
    for fault in found:
        print(f"{path}: {fault}", file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
