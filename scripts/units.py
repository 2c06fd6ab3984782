#!/usr/bin/env python3
"""Puts sources together into translation units, for what costs much once for each unit: sanitized
and test code, and the lint. Sources that give one name to two things of their own go into different
units.

    units.py LARGEST SOURCE...    prints for each source the number of its unit, parted by ;
"""

import re
import sys
from pathlib import Path

# The formatter keeps what a namespace holds at the beginning of the line.
NAMESPACE = re.compile(r"^namespace ([\w:]+) \{")
DECLARED = (
    re.compile(r"^(?:struct|class|union|enum|enum class) (\w+)"),
    re.compile(r"^(?:using|namespace) (\w+) ="),
    re.compile(r"^(?:[\w:]+ )*(?:const|constexpr) [^=({]*?\b(\w+)(?:\[\w*\])?(?: =|\{|;|\()"),
    re.compile(r"^(?:TEST|TEST_F|TEST_P|INSTANTIATE_TEST_SUITE_P)\((\w+, ?\w+)"),
    re.compile(r"^[A-Za-z_][^=(]*?\b(\w+)\("),
)


def own_names(source):
    """What a source declares outside of functions and records, each name behind its namespace."""
    names = set()
    namespace = ""
    for line in source.read_text().splitlines():
        if opened := NAMESPACE.match(line):
            namespace = opened[1]
        for pattern in DECLARED:
            if declared := pattern.match(line):
                names.add(f"{namespace}::{declared[1]}")
                break
    return names


def units(sources, largest):
    """Lists of at most `largest` sources, in the order given; each goes where it first fits."""
    found = []
    for source in sources:
        names = own_names(source)
        for members, taken in found:
            if len(members) < largest and not taken & names:
                break
        else:
            members, taken = [], set()
            found.append((members, taken))
        members.append(source)
        taken.update(names)
    return [members for members, _ in found]


def main():
    sources = [Path(name) for name in sys.argv[2:]]
    unit = {s: i for i, members in enumerate(units(sources, int(sys.argv[1]))) for s in members}
    print(";".join(str(unit[source]) for source in sources), end="")


if __name__ == "__main__":
    main()
