#!/usr/bin/env python3
"""Curves and colour bands against contourpy, on the same fields, in one run.

    python3 bench/ContourBench.py [build/release/bench/ContourBench]

Runs of ours and of contourpy take turns. contourpy gets each field once, in a generator of its own;
its medians are reduced by what the same calls cost on a field of one cell without values, which is
Python's own time. Prints the ratio of medians (above 1: ours is faster) and what each made.
contourpy comes from PyPI into build/contourpy-venv.
"""
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

Root = pathlib.Path(__file__).resolve().parent.parent
Venv = Root / "build" / "contourpy-venv"
Packages = ["contourpy==1.3.3", "numpy==2.4.6"]
Columns, Rows, Step = 160, 125, 0.1
Levels = [50.0, 100.0, 150.0, 200.0, 300.0, 500.0, 750.0, 1000.0]
Fields = ["smooth", "smooth with holes", "noisy with holes"]
Bars = {"curves": 2.5, "bands": 2.0}
Rounds = 300


def enter_venv():
    """Makes the environment where it is missing and starts again inside it."""
    python = Venv / "bin" / "python"
    if not python.exists():
        subprocess.run([sys.executable, "-m", "venv", Venv], check=True)
    if pathlib.Path(sys.prefix) != Venv:
        done = Venv / "installed"
        if not done.exists() or done.read_text() != str(Packages):
            subprocess.run([python, "-m", "pip", "install", "-q", *Packages], check=True)
            done.write_text(str(Packages))
        os.execv(python, [python, __file__, *sys.argv[1:]])


def main():
    import numpy
    from contourpy import FillType, LineType, contour_generator

    bounds = [-numpy.inf, *Levels, numpy.inf]

    def generator(x, y, values):
        return contour_generator(x, y, values, name="serial", corner_mask=False,
                                 line_type=LineType.Separate, fill_type=FillType.OuterOffset)

    def curves(source):
        return [source.lines(level) for level in Levels]

    def bands(source):
        return [source.filled(low, high) for low, high in zip(bounds, bounds[1:])]

    def seconds(work, source):
        start = time.perf_counter()
        result = work(source)
        end = time.perf_counter()
        del result
        return end - start

    def count_curves(source):
        lines = [line for level in curves(source) for line in level]
        return f"{len(lines)} curves, {sum(map(len, lines))} points"

    def count_bands(source):
        outers = [polygon for band in bands(source) for polygon in zip(*band)]
        holes = sum(len(offsets) - 2 for _, offsets in outers)
        points = sum(len(points) - (len(offsets) - 1) for points, offsets in outers)
        return f"{len(outers)} polygons, {holes} holes, {points} points"

    program = sys.argv[1] if len(sys.argv) > 1 else Root / "build/release/bench/ContourBench"
    nothing = generator([0, 1], [0, 1], numpy.full((2, 2), numpy.nan))
    with tempfile.TemporaryDirectory() as folder:
        ours = subprocess.Popen([program, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                text=True)

        def ask(line):
            ours.stdin.write(line + "\n")
            ours.stdin.flush()
            return ours.stdout.readline().strip()

        ours.stdout.readline()
        x, y = numpy.arange(Columns) * Step, numpy.arange(Rows) * Step
        for number, name in enumerate(Fields):
            values = numpy.fromfile(f"{folder}/field{number}.bin").reshape(Rows, Columns)
            source = generator(x, y, values)
            for kind, work, count in (("curves", curves, count_curves),
                                      ("bands", bands, count_bands)):
                samples = []
                for _ in range(Rounds):
                    samples.append((int(ask(f"{kind} {number}")) / 1e9, seconds(work, source),
                                    seconds(work, nothing)))
                mine, theirs, empty = (statistics.median(s) * 1e6 for s in zip(*samples))
                print(f"{kind}, {name}: {mine:.0f} us; contourpy {theirs - empty:.0f} us "
                      f"({empty:.1f} us of Python taken off); "
                      f"ratio {(theirs - empty) / mine:.2f} (bar {Bars[kind]})")
                print(f"    ours: {ask(f'count {kind} {number}')}; contourpy: {count(source)}")
        ours.stdin.close()
        ours.wait()


if __name__ == "__main__":
    enter_venv()
    main()
