#!/usr/bin/env python3
"""Kills work in its middle, and looks at what is left.

    kills.py FOLDER-OF-PROGRAMS [ROUNDS]

Each round lets one work begin (save, publish, delete, draft, batch; three sizes), kills it with SIGKILL at a
random instant, lets the next start sweep, and wants: every picture under its final name whole, none without its
record where a record belongs to it, no empty folder, nothing else left.
"""
import os
import random
import signal
import subprocess
import sys
import tempfile
import time
import zlib
from pathlib import Path

SIZES = ((160, 90), (1920, 1080), (4320, 4320))
PNG_BEGIN = b"\x89PNG\r\n\x1a\n"


def is_whole_png(path):
    """All chunks with their checksums, and as many rows as the header says."""
    data, place, rows = path.read_bytes(), 8, []
    if data[:8] != PNG_BEGIN:
        return False
    height = int.from_bytes(data[20:24], "big")
    while place + 12 <= len(data):
        length = int.from_bytes(data[place:place + 4], "big")
        kind, body = data[place + 4:place + 8], data[place + 8:place + 8 + length]
        if zlib.crc32(kind + body) != int.from_bytes(data[place + 8 + length:place + 12 + length], "big"):
            return False
        if kind == b"IDAT":
            rows.append(body)
        if kind == b"IEND":
            return len(zlib.decompress(b"".join(rows))) % height == 0
        place += 12 + length
    return False


class Work:
    """One kind of work. `faults` says what is wrong with `folder` after a kill and a sweep."""

    def __init__(self, programs, name, size):
        self.programs, self.name, self.size = programs, name, size

    def command(self, folder):
        return [self.programs / "reliability_worker", self.name, folder, *map(str, self.size)]

    def is_ready(self, process, folder):
        return process.stdout.readline().strip() == b"ready"

    def sweep(self, folder):
        """What the next start finds wrong."""
        return subprocess.run([self.programs / "reliability_worker", "sweep", folder, "16", "16"], check=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout.splitlines()

    def faults(self, folder):
        for path in sorted(folder.rglob("*")):
            if path.is_dir():
                if not any(path.iterdir()):
                    yield f"empty folder {path.name}"
            elif path.suffix == ".png":
                if not is_whole_png(path):
                    yield f"torn {path.name}"
                if self.has_records and not path.with_suffix(".json").exists():
                    yield f"{path.name} without its record"
            elif not (self.has_records and path.suffix == ".json" and path.with_suffix(".png").exists()):
                yield f"left: {path.relative_to(folder)}"

    has_records = True


class Save(Work):
    """The editor by itself, which keeps no store: the folder that a save has begun with may stay, empty."""
    has_records = False

    def faults(self, folder):
        found = list(super().faults(folder))
        begun = [fault for fault in found if fault.startswith("empty folder")]
        return [fault for fault in found if fault not in begun[:1]]


class Batch(Work):
    has_records = False
    WALLS = 40

    def command(self, folder):
        walls = folder.parent / "walls.csv"
        walls.write_text("name,width,height\n" + "".join(
            f"w{i},{self.size[0]},{self.size[1]}\n" for i in range(self.WALLS)))
        record = folder.parent / "chart.json"
        with record.open("wb") as file:
            subprocess.run([self.programs / "vdchart", "new"], check=True, stdout=file)
        return [self.programs / "vdchart", "batch", record, "-w", walls, "-o", folder, "-r"]

    def is_ready(self, process, folder):
        while process.poll() is None and not (folder / "manifest.json").exists():
            time.sleep(0.002)
        return (folder / "manifest.json").exists()

    def sweep(self, folder):
        """A batch that goes on is its own next start; large ones are only looked at."""
        if self.size == SIZES[0]:
            subprocess.run(self.command(folder), check=True, stdout=subprocess.DEVNULL)
        return []

    def faults(self, folder):
        pictures = [path for path in folder.iterdir() if path.suffix == ".png"]
        yield from (f"torn {path.name}" for path in pictures if not is_whole_png(path))
        if self.size == SIZES[0]:
            others = set(folder.iterdir()) - set(pictures) - {folder / "manifest.json"}
            yield from (f"left: {path.name}" for path in others)
            if len(pictures) != self.WALLS:
                yield f"{len(pictures)} pictures of {self.WALLS}"


def kill_once(work, parent, chance, longest):
    folder = parent / "charts"
    folder.mkdir(exist_ok=True)
    process = subprocess.Popen(work.command(folder), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    if not work.is_ready(process, folder):
        sys.exit(f"{work.name} did not begin")
    time.sleep(chance.uniform(0, longest))
    process.send_signal(signal.SIGKILL)
    said = process.communicate()[0].decode().splitlines()
    return [line for line in said if line.startswith("failed")] + work.sweep(folder) + list(work.faults(folder))


def main():
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    programs = Path(sys.argv[1]).resolve()
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    chance = random.Random(20261122)
    kinds = (Save, "save"), (Work, "publish"), (Work, "delete"), (Work, "draft"), (Batch, "batch")
    bad = 0
    for kind, name in kinds:
        for size in SIZES:
            count = rounds if size == SIZES[0] else max(1, rounds // 10)
            longest = 0.3 if size == SIZES[0] else 3
            found = []
            for _ in range(count):
                with tempfile.TemporaryDirectory() as parent:
                    found += kill_once(kind(programs, name, size), Path(parent), chance, longest)
            print(f"{name} {size[0]} x {size[1]}: {count} kills, {len(found)} faults", flush=True)
            for fault in found:
                print(f"  {fault}")
            bad += len(found)
    sys.exit(bad > 0)


if __name__ == "__main__":
    main()
