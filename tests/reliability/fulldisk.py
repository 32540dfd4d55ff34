#!/usr/bin/env python3
"""Fills the disk up while something is written, at every level, and looks at what is left.

    fulldisk.py FOLDER-OF-PROGRAMS [STEP]

Each work (render, batch, report, save, publish) is first measured, then done again with room for all but 64 KiB of
what it writes, STEP bytes more each time (512), up to all but one byte. It wants: a failure that gives the reason, and
nothing torn under a final name.
"""
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True
from kills import is_whole_png  # noqa: E402

LAST = 64 * 1024
REASON = re.compile("no space left|disk is full", re.IGNORECASE)


def run(command, library, room):
    environment = {**os.environ, "LD_PRELOAD": str(library), "VD_ROOM": str(room), "QT_QPA_PLATFORM": "offscreen"}
    result = subprocess.run(command, env=environment, capture_output=True, text=True, errors="replace", timeout=60)
    return result.returncode, result.stdout + result.stderr


def is_whole(path):
    if path.suffix == ".png":
        return is_whole_png(path)
    if path.suffix == ".pdf":
        return path.read_bytes().rstrip().endswith(b"%%EOF")
    return path.suffix == ".json"


def works(programs, source):
    """Name and command, whose last argument is where it writes."""
    vdchart, worker = programs / "vdchart", programs / "reliability_worker"
    size = "-s width=640 -s height=360".split()
    yield "render", lambda out: [vdchart, "render", source / "chart.json", *size, "-o", out / "chart.png"]
    yield "batch", lambda out: [vdchart, "batch", source / "chart.json", "-w", source / "walls.csv", "-o", out]
    yield "report", lambda out: [vdchart, "wall", "report", source / "a.wall.json", "-o", out / "report.pdf"]
    yield "save", lambda out: [worker, "save-once", out, "640", "360"]
    yield "publish", lambda out: [worker, "publish-once", out, "640", "360"]


def prepare(programs, source):
    def new(file, *arguments):
        with (source / file).open("wb") as output:
            subprocess.run([programs / "vdchart", *arguments], check=True, stdout=output)
    new("chart.json", "new")
    new("a.wall.json", "wall", "new", "--cabinet", "128x128", "--size", "5x3")
    (source / "walls.csv").write_text("name,width,height\na,640,360\nb,800,600\n")


def written_by(command, library):
    """The least room with which it comes to its end, in bytes."""
    low, high = 0, 1 << 26
    while low < high:
        middle = (low + high) // 2
        with tempfile.TemporaryDirectory() as out:
            if run(command(Path(out)), library, middle)[0] == 0:
                high = middle
            else:
                low = middle + 1
    return low


def faults(command, library, room):
    with tempfile.TemporaryDirectory() as folder:
        code, said = run(command(Path(folder)), library, room)
        if code <= 0:
            yield f"{room} bytes: ended with {code}"
        if not REASON.search(said):
            yield f"{room} bytes: says {said.strip()[-100:]!r}"
        for path in Path(folder).rglob("*"):
            if path.is_file() and not is_whole(path):
                yield f"{room} bytes: torn or left: {path.name}"


def main():
    programs = Path(sys.argv[1]).resolve()
    step = int(sys.argv[2]) if len(sys.argv) > 2 else 512
    library = programs.parent / "lib" / "libsmalldisk.so"
    if not library.exists():
        sys.exit(f"{library} is missing: no disk would be full")
    bad = 0
    with tempfile.TemporaryDirectory() as folder:
        source = Path(folder)
        prepare(programs, source)
        for name, command in works(programs, source):
            needed = written_by(command, library)
            levels = range(max(0, needed - LAST), needed, step)
            found = [fault for room in levels for fault in faults(command, library, room)]
            print(f"{name}: {needed} bytes, {len(levels)} levels, {len(found)} faults", flush=True)
            for fault in found[:10]:
                print(f"  {fault}")
            bad += len(found)
    sys.exit(bad > 0)


if __name__ == "__main__":
    main()
