#!/usr/bin/env python3
"""Saves into a folder of a slow disk, and wants that the interface waits for nothing there.

    slowdisk.py FOLDER-OF-PROGRAMS
"""
import os
import subprocess
import sys
import tempfile
from pathlib import Path


def waits_of(programs, who, folder):
    """What the main thread waited for from the beginning of the save, and what the program said."""
    environment = {**os.environ, "LD_PRELOAD": str(programs.parent / "lib" / "libslowdisk.so"), "VD_SLOW": folder,
                   "QT_QPA_PLATFORM": "offscreen"}
    result = subprocess.run([programs / "reliability_patience", who, folder], env=environment, capture_output=True,
                            text=True, timeout=300)
    lines = result.stderr.splitlines()
    begin = lines.index("begins") if "begins" in lines else 0
    waits = [line for line in lines[begin:] if line.startswith("waited")]
    if result.returncode != 0:
        waits.append(f"ended with {result.returncode}: {result.stderr[-300:]}")
    return waits, result.stdout.strip()


def main():
    programs = Path(sys.argv[1]).resolve()
    if not (programs.parent / "lib" / "libslowdisk.so").exists():
        sys.exit("libslowdisk.so is missing: no disk would be slow")
    bad = 0
    for who in ("editor", "desk"):
        with tempfile.TemporaryDirectory() as folder:
            waits, said = waits_of(programs, who, folder)
            pictures = list(Path(folder).rglob("*.png"))
        print(f"{who}: {said}, {len(pictures)} pictures, {len(waits)} waits", flush=True)
        for wait in waits:
            print(f"  {wait}")
        bad += len(waits) + (len(pictures) != 1)
    sys.exit(bad > 0)


if __name__ == "__main__":
    main()
