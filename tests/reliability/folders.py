#!/usr/bin/env python3
"""Has the programs write into folders that take nothing: folders.py FOLDER-OF-PROGRAMS

Each work (render, batch, report, pack, save, publish) meets each obstacle. It wants, where that is in its way: a
failure with one message that names a path and gives the reason, nothing left, and nothing outside of the folder
touched. Root, whom no permission stops, becomes another user for it.
"""
import os
import subprocess
import sys
import tempfile
from pathlib import Path

NOBODY = 65534
ROOM = 255  # bytes of a name


def read_only(place):
    (place / "out").mkdir()
    (place / "out").chmod(0o555)


def below_read_only(place):
    place.chmod(0o555)


def file_in_the_way(place):
    (place / "out").write_text("kept")


def link_to_nothing(place):
    (place / "out").symlink_to("nothing")


def link_to_a_file(place):
    (place / "out").symlink_to("outside/kept.txt")


def links_in_it(place):
    """Under the names that would be written."""
    (place / "out").mkdir()
    for name in ("chart.png", "manifest.json"):
        (place / "out" / name).symlink_to("../outside/kept.txt")


def links_to_nothing_in_it(place):
    (place / "out").mkdir()
    for name in ("chart.png", "manifest.json"):
        (place / "out" / name).symlink_to("../outside/new.txt")


def link_to_a_folder(place):
    (place / "out").symlink_to("outside")


# Each with the works that it stops; the others are to come to their end.
EVERY = {"render", "batch", "report", "pack", "save", "publish"}
OBSTACLES = {
    read_only: EVERY,
    below_read_only: EVERY,
    file_in_the_way: EVERY,
    link_to_nothing: EVERY,
    link_to_a_file: EVERY,
    links_in_it: {"batch"},
    links_to_nothing_in_it: {"batch"},
    link_to_a_folder: set(),  # which a user has made to write there
}


def works(programs, source):
    """Name and command; `out` is the folder that it writes into."""
    vdchart, worker = programs / "vdchart", programs / "reliability_worker"
    yield "render", lambda out: [vdchart, "render", source / "chart.json", "-o", out / "own.png"]
    yield "batch", lambda out: [vdchart, "batch", source / "chart.json", "-o", out]
    yield "report", lambda out: [vdchart, "wall", "report", source / "a.wall.json", "-o", out / "report.pdf"]
    yield "pack", lambda out: [vdchart, "show", "pack", source / "a.show.json", "-o", out / "show.zip"]
    yield "save", lambda out: [worker, "save-once", out, "320", "180"]
    yield "publish", lambda out: [worker, "publish-once", out, "320", "180"]


def prepare(programs, source):
    vdchart = programs / "vdchart"

    def new(file, *arguments):
        with (source / file).open("wb") as output:
            subprocess.run([vdchart, *arguments], check=True, stdout=output)
    new("chart.json", "new", "-s", "width=320", "-s", "height=180")
    new("a.wall.json", "wall", "new", "--cabinet", "128x128", "--size", "5x3")
    (source / "a.show.json").write_text(
        '{"format": "testshow", "version": 1, "show": {"outputs": [{"name": "A", "width": 1920, "height": 1080}],'
        ' "walls": [{"name": "W", "path": "a.wall.json"}], "placements": [{"wall": "W", "output": "A"}]}}')


def run(command):
    user = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.geteuid() == 0 else {}
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "HOME": "/nonexistent",
                   "QT_LOGGING_RULES": "*=false"}
    result = subprocess.run(command, env=environment, capture_output=True, text=True, errors="replace", timeout=60,
                            cwd="/", **user)
    lines = [line for line in (result.stdout + result.stderr).splitlines() if "XDG_RUNTIME_DIR" not in line]
    return result.returncode, lines


def tree(folder):
    """Everything in it, with the contents of files."""
    found = {}
    for path in sorted(folder.rglob("*")):
        kept = path.is_symlink() or path.is_dir()
        found[str(path.relative_to(folder))] = os.readlink(path) if path.is_symlink() else kept or path.read_bytes()
    return found


def problem_of(command, place, out, stopped):
    """What is not as it is wanted; empty where all is."""
    before = tree(place)
    code, lines = run(command)
    after = tree(place)
    if not stopped:
        kept = {name: contents for name, contents in after.items() if name in before}
        return "" if code == 0 and kept == before else f"ends with {code}, {lines}"
    if code == 0:
        return "is told to have worked"
    if before != after:
        return f"leaves {sorted(set(after.items()) ^ set(before.items()), key=str)}"[:300]
    if len(lines) != 1 or str(out) not in lines[0]:
        return f"tells {lines}"
    return ""


def names(programs, source, folder):
    """A picture's name may have all the bytes that the system has room for, and any character."""
    for name in ("x" * (ROOM - 4) + ".png", "ä" * 125 + "x.png", "a\nb\tc\x01.png"):
        code, lines = run([programs / "vdchart", "render", source / "chart.json", "-o", folder / name])
        if code != 0 or os.listdir(folder) != [name]:
            yield f"render into {name!r} ends with {code}, {lines}, {os.listdir(folder)}"
        (folder / name).unlink(missing_ok=True)
    code, lines = run([programs / "vdchart", "render", source / "chart.json", "-o", folder / ("x" * ROOM + ".png")])
    if code != 4 or len(lines) != 1 or os.listdir(folder):
        yield f"a name that is too long ends with {code}, {lines}"


def main():
    programs = Path(sys.argv[1]).resolve()
    failures = 0
    cases = 0
    with tempfile.TemporaryDirectory() as top:
        os.chmod(top, 0o755)
        source = Path(top) / "source"
        source.mkdir()
        prepare(programs, source)
        for work, command in works(programs, source):
            for obstacle, stops in OBSTACLES.items():
                place = Path(top) / f"{work}-{obstacle.__name__}"
                (place / "outside").mkdir(parents=True)
                (place / "outside" / "kept.txt").write_text("kept")
                for path in (place, place / "outside", place / "outside" / "kept.txt"):
                    path.chmod(0o777)
                obstacle(place)
                if (place / "out").is_dir() and obstacle is not read_only and not (place / "out").is_symlink():
                    (place / "out").chmod(0o777)
                cases += 1
                problem = problem_of(command(place / "out"), place, place / "out", work in stops)
                failures += bool(problem)
                if problem:
                    print(f"WRONG {work}, {obstacle.__name__}: {problem}")
        folder = Path(top) / "names"
        folder.mkdir()
        folder.chmod(0o777)
        for problem in names(programs, source, folder):
            failures += 1
            print(f"WRONG {problem}")
    print(f"{cases} cases: {failures} wrong")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
