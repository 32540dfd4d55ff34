#!/usr/bin/env python3
"""Changes and saves a large chart all day, and looks at every picture.

    marathon.py FOLDER-OF-PROGRAMS [CHANGES [SAVES [SIDE]]]

The editor is shown; what it saves is compared with its record pixel for pixel by `vdchart verify`. It wants: every
picture the record's, all of them saved, and at the most 500 MiB of memory.
"""
import os
import subprocess
import sys
import tempfile
from pathlib import Path

MOST_MEMORY = 500 * 1024  # KiB


def fault_of(programs, picture):
    record = picture.with_suffix(".json")
    result = subprocess.run([programs / "vdchart", "verify", picture, record], capture_output=True, text=True)
    picture.unlink()
    return "" if result.returncode == 0 else f"{picture.name}: {result.stdout.strip()} {result.stderr.strip()}"


def main():
    programs = Path(sys.argv[1]).resolve()
    changes, saves, side = [int(word) for word in sys.argv[2:5] + ["1000", "100", "4320"][len(sys.argv) - 2:]]
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    faults, peak = [], 0
    with tempfile.TemporaryDirectory() as folder:
        command = [programs / "reliability_marathon", folder, str(changes), str(saves), str(side)]
        day = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
        for line in day.stdout:
            word, _, rest = line.strip().partition(" ")
            if word == "saved":
                saves -= 1
                faults.append(fault_of(programs, Path(rest)))
            elif word == "peak":
                peak = int(rest.split()[0])
            else:
                faults.append(line.strip())
        if day.wait() != 0 or saves != 0:
            faults.append(f"ended with {day.returncode}, {saves} saves missing")
    faults = [fault for fault in faults if fault]
    print(f"{changes} changes of {side} x {side}: {len(faults)} faults, {peak / 1024:.0f} MiB")
    for fault in faults:
        print(f"  {fault}")
    sys.exit(bool(faults) or peak > MOST_MEMORY)


if __name__ == "__main__":
    main()
