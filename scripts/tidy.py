#!/usr/bin/env python3
"""Runs clang-tidy over the sources given, several at a time.

Nearly all of clang-tidy's time goes into the standard headers, once for each translation unit. So
many sources that are compiled alike are looked at in one unit that includes them all. Sources that
give one name to two things of their own go into different units. A source that a unit complains
about, for a finding or for a name that was overlooked, is looked at once more alone, and that
verdict counts.

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
from itertools import chain
from pathlib import Path

from units import units

ROOT = Path(__file__).resolve().parent.parent
LARGEST_BATCH = 40
UNIT_INCLUDE = re.compile(r'^#include "([^"]+\.cpp)"', re.M)
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


def compiled_sources(file):
    """The sources of a unit that the build has put together, else the file itself."""
    if file.parent.name != "Unity":
        return [file]
    return [Path(name) for name in UNIT_INCLUDE.findall(file.read_text())]


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
        for source in compiled_sources(Path(entry["file"])):
            flags[source] = tuple(kept)
    return flags


def split_flags(flags):
    """The folders that are searched for headers, and all other flags."""
    folders, others = [], []
    words = iter(flags)
    for word in words:
        if word == "-isystem":
            folders.append((word, next(words)))
        elif word.startswith("-I"):
            folders.append((word,))
        else:
            others.append(word)
    return folders, tuple(others)


def batches(sources, flags):
    """Sources of the same flags, except for folders with headers, that share no name; with the
    flags of all."""
    alike = defaultdict(list)
    for source in sources:
        alike[split_flags(flags[source])[1]].append(source)
    for others, members in alike.items():
        for unit in units(members, LARGEST_BATCH):
            folders = dict.fromkeys(f for source in unit for f in split_flags(flags[source])[0])
            yield unit, (*others, *chain.from_iterable(folders))


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

    def together(self, batch, flags):
        """True where every source of the batch passed."""
        if len(batch) == 1:
            return self.alone(batch[0])
        name = hashlib.sha256("".join(map(str, batch)).encode()).hexdigest()[:16]
        unit = self.marks / f"{name}.cpp"
        unit.write_text("".join(f'#include "{source}"\n' for source in batch))
        passed, told = self.run(unit, flags)
        unit.unlink()
        if passed:
            for source in batch:
                self.marked[source].touch()
            return True
        named = [s for s in batch if f"{s}:" in told] or batch
        others = [s for s in batch if s not in named]
        verdicts = [self.alone(source) for source in named]
        if others:
            verdicts.append(self.together(others, flags))
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
    work = sorted(
        batches([s for s in todo if s in flags], flags), key=lambda batch: len(batch[0]), reverse=True)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        verdicts = list(pool.map(lambda batch: tidy.together(*batch), work))
    return 0 if all(verdicts) and not unknown else 1


if __name__ == "__main__":
    sys.exit(main())
