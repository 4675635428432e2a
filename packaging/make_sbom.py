#!/usr/bin/env python3
"""Writes what a portable folder is made of, as SPDX 2.3 in JSON: sbom.spdx.json in the folder.

    make_sbom.py FOLDER VERSION <LIST

Each line of the list is a file's name without its folder and the Debian package that it came from, with its
version and architecture. Every other file is Norvane's own. SOURCE_DATE_EPOCH gives the time of the
document.
"""

import hashlib
import json
import os
import pathlib
import sys
import time

OWN = "SPDXRef-norvane"


def identifier(kind, name):
    safe = "".join(letter if letter.isalnum() or letter in ".-" else "-" for letter in name)
    return f"SPDXRef-{kind}-{safe}"


def package(name, version, machine):
    return {
        "SPDXID": identifier("package", name), "name": name, "versionInfo": version,
        "supplier": "Organization: Debian", "downloadLocation": "NOASSERTION",
        "filesAnalyzed": False, "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
        "copyrightText": "NOASSERTION",
        "comment": f"licence and copyright in licences/{name}.txt",
        "externalRefs": [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                          "referenceLocator": f"pkg:deb/debian/{name}@{version}?arch={machine}"}],
    }


def described(path, name):
    content = path.read_bytes()
    return {
        "SPDXID": identifier("file", name), "fileName": f"./{name}",
        "checksums": [{"algorithm": kind.upper(),
                       "checksumValue": hashlib.new(kind, content).hexdigest()}
                      for kind in ("sha1", "sha256")],
        "licenseConcluded": "NOASSERTION", "copyrightText": "NOASSERTION",
    }


def document(folder, version, origins):
    origin_of = {name: package_name for name, package_name, *_ in origins}
    own = {"SPDXID": OWN, "name": "Norvane", "versionInfo": version, "supplier": "NOASSERTION",
           "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
           "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
           "copyrightText": "NOASSERTION", "comment": "licence in LICENSE"}
    packages = {line[1]: package(*line[1:]) for line in origins}
    files, links = [], [("SPDXRef-DOCUMENT", "DESCRIBES", OWN)]
    links += [(OWN, "DEPENDS_ON", found["SPDXID"]) for found in packages.values()]
    for path in sorted(folder.rglob("*")):
        if not path.is_file() or path.name == "sbom.spdx.json":
            continue
        files.append(described(path, str(path.relative_to(folder))))
        origin = origin_of.get(path.name)
        owner = packages[origin]["SPDXID"] if origin else OWN
        links.append((owner, "CONTAINS", files[-1]["SPDXID"]))
    created = time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", time.time())))
    everything = hashlib.sha256(json.dumps(files).encode()).hexdigest()
    return {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": folder.name,
        "documentNamespace": f"https://www.norvane.example/spdx/{folder.name}-{everything}",
        "creationInfo": {"created": time.strftime("%Y-%m-%dT%H:%M:%SZ", created),
                         "creators": ["Tool: norvane-make_sbom"]},
        "packages": [own, *packages.values()], "files": files,
        "relationships": [{"spdxElementId": left, "relationshipType": kind,
                           "relatedSpdxElement": right} for left, kind, right in links],
    }


def main():
    folder, version = pathlib.Path(sys.argv[1]), sys.argv[2]
    origins = [line.split() for line in sys.stdin if line.strip()]
    text = json.dumps(document(folder, version, origins), indent=1)
    (folder / "sbom.spdx.json").write_text(text + "\n")


if __name__ == "__main__":
    main()
