#!/usr/bin/env python3
"""Prints the SPDX list of a release: make_spdx.py NAME VERSION FILES CONTENTS THIRD-PARTY.md

Every file of the folder FILES, and every file inside the archives, which lie unpacked as NAME-* in the folder CONTENTS, with
checksums; and every dependency that THIRD-PARTY.md lists as part of the product, with its licence. SPDX 2.3, tag-value form.
The time is that of the commit (SOURCE_DATE_EPOCH).
"""

import hashlib
import os
import pathlib
import re
import sys
import time


def product_rows(third_party):
    section = third_party.split("## In the product", 1)[1].split("\n## ", 1)[0]
    rows = re.findall(r"^\| (.+?) \| (.+?) \| .+ \|$", section, re.M)
    return [row for row in rows if row[0] != "dependency" and not row[0].startswith("---")]


def identifier(text):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]+", "-", text).strip("-")


def files_below(folder, pattern):
    return sorted(path for top in folder.glob(pattern) for path in [top, *top.rglob("*")] if path.is_file())


def print_files(folder, pattern):
    for path in files_below(folder, pattern):
        name = path.relative_to(folder).as_posix()
        # Names that differ in a sign alone, such as libc++ and libc--, need different identifiers.
        number = hashlib.sha256(name.encode()).hexdigest()[:8]
        digest = {kind: hashlib.new(kind, path.read_bytes()).hexdigest() for kind in ("sha1", "sha256")}
        print(f"\nFileName: ./{name}\nSPDXID: {identifier('File-' + name)}-{number}")
        print(f"FileChecksum: SHA1: {digest['sha1']}\nFileChecksum: SHA256: {digest['sha256']}")
        print("LicenseConcluded: NOASSERTION\nLicenseInfoInFile: NOASSERTION\nFileCopyrightText: NOASSERTION")


def main(name, version, files, contents, third_party):
    created = time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"])))
    print(f"SPDXVersion: SPDX-2.3\nDataLicense: CC0-1.0\nSPDXID: SPDXRef-DOCUMENT\nDocumentName: {name}")
    print(f"DocumentNamespace: urn:tolvan:{name}\nCreator: Tool: make_spdx.py-{version}\nCreated: {created}")
    # Files stand before the first package: they belong to the document.
    print_files(pathlib.Path(files), "*")
    print_files(pathlib.Path(contents), f"{name}-*")
    print(f"\nPackageName: UtilsDllTrelioFrame\nSPDXID: SPDXRef-Package\nPackageVersion: {version}")
    print("PackageDownloadLocation: NOASSERTION\nFilesAnalyzed: false")
    print("PackageLicenseConcluded: NOASSERTION\nPackageLicenseDeclared: NONE\nPackageCopyrightText: NOASSERTION")
    print("Relationship: SPDXRef-DOCUMENT DESCRIBES SPDXRef-Package")
    for dependency, licence in product_rows(pathlib.Path(third_party).read_text(encoding="utf-8")):
        plain = dependency.replace("`", "")
        print(f"\nPackageName: {plain}\nSPDXID: {identifier(plain)}\nPackageDownloadLocation: NOASSERTION\nFilesAnalyzed: false")
        print(f"PackageLicenseConcluded: NOASSERTION\nPackageLicenseComments: <text>{licence}</text>")
        print("PackageLicenseDeclared: NOASSERTION\nPackageCopyrightText: NOASSERTION")
        print(f"Relationship: SPDXRef-Package DEPENDS_ON {identifier(plain)}")


if __name__ == "__main__":
    main(*sys.argv[1:])
