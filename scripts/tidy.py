#!/usr/bin/env python3
"""Runs clang-tidy over the sources given, several at a time.

Nearly all of clang-tidy's time goes into the standard headers, once for each translation unit. So
the sources of one folder that are compiled alike are looked at in one unit that includes them all.
A source that a batch complains about, for a finding or because two sources give one name to two
things of their own, is looked at once more alone, and that verdict counts.

What passed is marked by the content of the source, of its project headers and of the settings, and
is not looked at again until one of these changes.

    tidy.py COMPILE_DATABASE_FOLDER MARKS_FOLDER SOURCE...
"""

import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from functools import lru_cache
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LARGEST_BATCH = 12
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.M)


@lru_cache(maxsize=None)
def own_includes(path):
    """The project's headers that a file names itself."""
    places = (path.parent, ROOT / "src", ROOT, ROOT / "tests")
    found = []
    for name in INCLUDE.findall(path.read_bytes()):
        for place in places:
            header = Path(os.path.normpath(place / name.decode()))
            if header.is_file():
                found.append(header)
                break
    return tuple(found)


@lru_cache(maxsize=None)
def file_hash(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def digest(path, settings):
    """Changes with the source, with any project header under it and with the settings."""
    reached = {path}
    waiting = [path]
    while waiting:
        for header in own_includes(waiting.pop()):
            if header not in reached:
                reached.add(header)
                waiting.append(header)
    parts = [settings] + [f"{p.relative_to(ROOT)} {file_hash(p)}" for p in sorted(reached)]
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()[:32]


def compile_flags(database):
    """For each source its compiler flags, without what names the source itself."""
    flags = {}
    for entry in json.loads((database / "compile_commands.json").read_text()):
        words = shlex.split(entry["command"])[1:]
        kept = []
        skip = False
        for word in words:
            if skip:
                skip = False
            elif word in ("-o", "-c"):
                skip = True
            else:
                kept.append(word)
        flags[Path(entry["file"])] = tuple(kept)
    return flags


def batches(sources, flags):
    """Sources of one folder with the same flags, in pieces of nearly one size."""
    alike = defaultdict(list)
    for source in sources:
        alike[(source.parent, flags[source])].append(source)
    for members in alike.values():
        count = -(-len(members) // LARGEST_BATCH)
        for i in range(count):
            yield members[len(members) * i // count : len(members) * (i + 1) // count]


class Tidy:
    def __init__(self, marks, flags, marked):
        self.marks = marks
        self.flags = flags
        self.marked = marked
        self.told = set()

    def run(self, unit, flags):
        done = subprocess.run(
            ["clang-tidy", "--quiet", str(unit), "--", *flags],
            cwd=ROOT, capture_output=True, text=True, check=False)
        return done.returncode == 0, done.stdout

    def alone(self, source):
        passed, told = self.run(source, self.flags[source])
        if passed:
            self.marked[source].touch()
            return True
        self.tell(told)
        return False

    def tell(self, told):
        """Prints what is found; a finding in a header once, though all who include it have it."""
        for finding in re.split(r"^(?=\S+:\d+:\d+: (?:error|warning):)", told, flags=re.M):
            if finding not in self.told:
                self.told.add(finding)
                print(finding, end="", flush=True)

    def together(self, batch):
        """True where every source of the batch passed."""
        if len(batch) == 1:
            return self.alone(batch[0])
        name = hashlib.sha256("".join(map(str, batch)).encode()).hexdigest()[:16]
        unit = self.marks / f"{name}.cpp"
        unit.write_text("".join(f'#include "{source}"\n' for source in batch))
        passed, told = self.run(unit, self.flags[batch[0]])
        unit.unlink()
        if passed:
            for source in batch:
                self.marked[source].touch()
            return True
        named = [s for s in batch if f"{s}:" in told] or batch
        others = [s for s in batch if s not in named]
        verdicts = [self.alone(source) for source in named]
        if others:
            verdicts.append(self.together(others))
        return all(verdicts)


def main():
    database = Path(sys.argv[1]).resolve()
    marks = Path(sys.argv[2]).resolve()
    sources = [Path(os.path.abspath(name)) for name in sys.argv[3:]]
    marks.mkdir(parents=True, exist_ok=True)
    settings = file_hash(ROOT / ".clang-tidy")
    marked = {source: marks / digest(source, settings) for source in sources}
    todo = [source for source in sources if not marked[source].exists()]
    if not todo:
        return 0
    print(f"Lint: {len(todo)} files", flush=True)
    flags = compile_flags(database)
    unknown = [source for source in todo if source not in flags]
    for source in unknown:
        print(f"{source}: no command compiles it", flush=True)
    tidy = Tidy(marks, flags, marked)
    work = sorted(batches([s for s in todo if s in flags], flags), key=len, reverse=True)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        verdicts = list(pool.map(tidy.together, work))
    return 0 if all(verdicts) and not unknown else 1


if __name__ == "__main__":
    sys.exit(main())
