#!/usr/bin/env python3
"""What `vantoro simular` costs beyond Radiance itself.

Runs the program once with Radiance programs that note how they are called, makes a shell script of
those very command lines, and measures both by turns: whole program (scene, pictures, results) and
bare script. One process and a fixed seed on both sides, so that both do the same work.

    bench/Overhead.py [--programa build/release/vantoro] [--cena exemplos/escritorio/escritorio.json]
                      [--pares 5]
"""

import argparse
import os
import shlex
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TOOLS = ("ies2rad", "xform", "oconv", "rtrace")

# Notes working folder, input, output and arguments, each on a line, then becomes the real program.
RECORDER = """#!/bin/bash
source=$(readlink /proc/$$/fd/0)
exec 3>&1
target=$(readlink /proc/$$/fd/3)
exec 3>&-
{{
    pwd
    echo "$source"
    echo "$target"
    printf '%q ' {tool} "$@"
    echo
}} >> {notes}
exec {real} "$@"
"""


def record(program, scene, folder):
    """The calls of one run as (folder, input, output, command line), and the run's work folder."""
    radiance = program.parent / "Vantoro Radiance"
    notes = folder / "notes"
    bin_folder = folder / "Vantoro Radiance" / "bin"
    bin_folder.mkdir(parents=True)
    (folder / "Vantoro Radiance" / "lib").symlink_to((radiance / "lib").resolve())
    shutil.copy2(program, folder / "vantoro")
    for tool in TOOLS:
        script = bin_folder / tool
        real = (radiance / "bin" / tool).resolve()
        script.write_text(
            RECORDER.format(tool=tool, notes=shlex.quote(str(notes)), real=shlex.quote(str(real)))
        )
        script.chmod(0o755)
    work = folder / "work"
    simulate(folder / "vantoro", scene, folder / "saida", work)
    lines = notes.read_text().splitlines()
    calls = [tuple(lines[i : i + 4]) for i in range(0, len(lines), 4)]
    return [call for call in calls if call[0] == str(work)], work


def simulate(program, scene, output, work):
    command = [program, "simular", scene, "--saida", output, "--pasta-de-trabalho", work]
    subprocess.run([*map(str, command), "--repetivel", "--silencioso"], check=True)


def shell_script(calls, work, radiance):
    """The recorded calls as a script that runs in the folder of the recorded run."""
    lines = [
        "#!/bin/sh",
        "set -e",
        f"cd {shlex.quote(str(work))}",
        f"export RAYPATH={shlex.quote(str(work) + ':' + str(radiance / 'lib'))}",
        f"PATH={shlex.quote(str(radiance / 'bin'))}:$PATH",
    ]
    for _, source, target, command in calls:
        if source.startswith(str(work)):
            command += f"< {shlex.quote(source)} "
        if target.startswith(str(work)):
            command += f"> {shlex.quote(target)}"
        lines.append(command + " 2> /dev/null")
    return "\n".join(lines) + "\n"


def measure(command):
    """Wall and processor seconds of a command with all its children."""
    start = time.perf_counter()
    process = subprocess.Popen([str(word) for word in command])
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command[0]} ended with {process.returncode}")
    return wall, usage.ru_utime + usage.ru_stime


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--programa", type=Path, default=ROOT / "build/release/vantoro")
    parser.add_argument("--cena", type=Path, default=ROOT / "exemplos/escritorio/escritorio.json")
    parser.add_argument("--pares", type=int, default=5)
    arguments = parser.parse_args()
    program = arguments.programa.resolve()
    scene = arguments.cena.resolve()

    with tempfile.TemporaryDirectory(prefix="vantoro-overhead-") as name:
        folder = Path(name)
        calls, work = record(program, scene, folder / "record")
        script = folder / "radiance.sh"
        script.write_text(shell_script(calls, work, program.parent / "Vantoro Radiance"))
        print(f"{len(calls)} calls of Radiance programs, {len(script.read_text())} bytes of script")
        reference = (work / "illuminance.txt").read_bytes()

        ours, theirs = [], []
        for pair in range(arguments.pares):
            place = folder / f"pair{pair}"
            command = [program, "simular", scene, "--saida", place / "saida"]
            command += ["--pasta-de-trabalho", place / "work", "--repetivel", "--silencioso"]
            jobs = [(ours, command), (theirs, ["/bin/sh", script])]
            for results, job in jobs if pair % 2 == 0 else reversed(jobs):
                results.append(measure(job))
            if (place / "work/illuminance.txt").read_bytes() != reference:
                sys.exit("the program's values differ from those of the recorded run")
            if (work / "illuminance.txt").read_bytes() != reference:
                sys.exit("the script's values differ from those of the recorded run")
            print(
                f"pair {pair + 1}: vantoro {ours[-1][0]:.2f} s wall {ours[-1][1]:.2f} s CPU, "
                f"script {theirs[-1][0]:.2f} s wall {theirs[-1][1]:.2f} s CPU",
                flush=True,
            )

    for what, index in (("wall", 0), ("CPU", 1)):
        a = statistics.median(result[index] for result in ours)
        b = statistics.median(result[index] for result in theirs)
        print(f"{what}: vantoro {a:.3f} s, script {b:.3f} s, ratio {a / b:.4f}")


if __name__ == "__main__":
    main()
