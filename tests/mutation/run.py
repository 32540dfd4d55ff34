#!/usr/bin/env python3
"""Runs the tests on one-line faults of the sources, and tells which of these they do not catch.

    run.py [--count 200] [--jobs 2] [--patience SECONDS] [--report]

Builds the tree of mutate.py in build/mutation, without what does not compile; runs each test once without a fault, to
see which faults it reaches; then, for each fault, the tests that reach it, the fastest first, until one fails. A crash
and a run of more than four times as long count as failures. What is known stands in build/mutation/results.jsonl, so
that a run goes on where the last one ended: a fault that survived meets the tests that have been built anew since.
With `--patience` a fault that survived tests of so many seconds is left for the next run. `--report` prints only what
is known. Those of which nothing can be seen are explained in equivalent.txt.

As root the tests run as another user: what a fault has them remove shall be theirs.
"""
import argparse
import concurrent.futures
import json
import os
import re
import signal
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

import mutate

PLACE = mutate.ROOT / "build/mutation"
BUILD = PLACE / "build/dev"
OPTIONS = ("-DVD_TEST_X11=OFF", "-DVD_SYMBOLS=OFF", "-DVD_BUILD_EXAMPLES=OFF")
EQUIVALENT = Path(__file__).with_name("equivalent.txt")
SPARE = 1.3  # so many times as many are built, for those that do not compile
NOBODY = 65534
LIMITS = ("prlimit", f"--as={8 << 30}", "--core=0")


def load(name, default):
    path = PLACE / name
    return json.loads(path.read_text(encoding="utf-8")) if path.exists() else default


def store(name, value):
    (PLACE / name).write_text(json.dumps(value, indent=1), encoding="utf-8")


# Building.

def broken_keys(output, faults):
    """The faults in whose lines the compiler complains; the first line of a file with faults is the header's."""
    places = {(fault.file, fault.line + 1): fault.key for fault in faults}
    found = set()
    for path, line in re.findall(r"^(?:In file included from |\s+from )?([^\s:]+):(\d+)[:,]", output, re.M):
        file = os.path.relpath(BUILD / path, PLACE)
        found.add(places.get((file, int(line))))
    return found - {None}


def build(faults):
    mutate.write_tree(mutate.ROOT, PLACE, faults)
    subprocess.run(["cmake", "--preset", "dev", *OPTIONS], cwd=PLACE, check=True, stdout=subprocess.DEVNULL)
    return subprocess.run(["cmake", "--build", "--preset", "dev", "--", "-k", "0"], cwd=PLACE, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def built_faults(count):
    """Those that are chosen, by their numbers, with some spare ones; and the keys of those that are wanted."""
    texts = mutate.sources(mutate.ROOT)
    broken = {tuple(key) for key in load("broken.json", [])}
    while True:
        faults = mutate.chosen(texts, int(count * SPARE), broken=broken)
        result = build(faults)
        if result.returncode == 0:
            return mutate.numbered(faults), {fault.key for fault in mutate.chosen(texts, count, broken=broken)}
        found = broken_keys(result.stdout, faults)
        if not found:
            sys.exit(result.stdout + "The tree with the faults cannot be built.")
        broken |= found
        store("broken.json", sorted(broken))
        print(f"{len(found)} faults do not compile", flush=True)


# Running tests.

class Test:
    def __init__(self, described):
        properties = {each["name"]: each["value"] for each in described.get("properties", [])}
        self.name = described["name"]
        self.command = described.get("command", [])
        self.folder = properties.get("WORKING_DIRECTORY", BUILD)
        self.environment = dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))

    @property
    def program(self):
        return Path(self.command[0])

    @property
    def stamp(self):
        return self.program.stat().st_mtime

    def is_meant(self):
        """Programs of the tree and the scripts that starve them; not what builds hosts or reads sources."""
        starved = any("/tests/reliability/" in word for word in self.command)
        return bool(self.command) and (self.program.parent == BUILD / "bin" or starved)

    def run(self, limit, **environment):
        """How it failed, if it did, and how long it took."""
        begin = time.monotonic()
        with tempfile.TemporaryDirectory(prefix="vdmutant-", ignore_cleanup_errors=True) as home:
            user = as_nobody(home)
            variables = {**os.environ, "HOME": home, "TMPDIR": home, "XDG_RUNTIME_DIR": home, **self.environment,
                         **environment}
            process = subprocess.Popen([*LIMITS, *self.command], cwd=self.folder, env=variables, text=True,
                                       errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                       start_new_session=True, **user)
            failure = failure_of(process, limit)
        return failure, time.monotonic() - begin


def as_nobody(home):
    if os.geteuid() != 0:
        return {}
    os.chown(home, NOBODY, NOBODY)
    return {"user": NOBODY, "group": NOBODY, "extra_groups": []}


def end(process):
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


def failure_of(process, limit):
    """The first failure is enough: the rest of the test is not waited for."""
    over = threading.Event()
    timer = threading.Timer(limit, lambda: (over.set(), end(process)))
    timer.start()
    failed = next((line.strip() for line in process.stdout if line.startswith(("FAIL!", "WRONG"))), "")
    if failed:
        end(process)
    code = process.wait()
    timer.cancel()
    end(process)
    process.stdout.close()
    return "time limit" if over.is_set() else failed or (f"ends with {code}" if code else "")


def tests():
    listed = subprocess.run(["ctest", "--preset", "dev", "--show-only=json-v1"], cwd=PLACE, check=True,
                            capture_output=True, text=True).stdout
    return [test for test in map(Test, json.loads(listed)["tests"]) if test.is_meant()]


# The baseline: what each test reaches.

def measured(test):
    with tempfile.NamedTemporaryFile("r", prefix="vdreached-") as reached:
        os.chmod(reached.name, 0o666)
        failure, seconds = test.run(1200, VD_MUTANTS_REACHED=reached.name)
        numbers = {int(line) for line in reached.read().split()}
    print(f"{seconds:6.1f} s  {test.name}: {failure or f'reaches {len(numbers)}'}", flush=True)
    return {"stamp": test.stamp, "seconds": seconds, "failure": failure, "reached": sorted(numbers)}


def baseline(faults, pool):
    """Of the last run, but for the tests that were built anew; of none where there are new faults."""
    numbers = sorted(faults)
    known = load("baseline.json", {"faults": [], "tests": {}})
    kept = known["tests"] if set(numbers) <= set(known["faults"]) else {}
    new = [test for test in tests() if kept.get(test.name, {}).get("stamp") != test.stamp or kept[test.name]["failure"]]
    for test, result in zip(new, pool.map(measured, new)):
        kept[test.name] = result
        store("baseline.json", {"faults": numbers, "tests": kept})
    return kept


# One fault after the other.

def results():
    path = PLACE / "results.jsonl"
    lines = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
    return {tuple(entry["key"]): entry for entry in map(json.loads, lines)}


class Hunt:
    def __init__(self, faults, wanted, reached, patience):
        self.faults = faults
        self.patience = patience
        self.wanted = wanted
        self.reached = reached
        self.tests = {test.name: test for test in tests() if not reached[test.name]["failure"]}
        self.known = results()
        self.lock = threading.Lock()

    def reaching(self, number):
        """The tests to run on it, fastest first."""
        names = [name for name in self.tests if number in self.reached[name]["reached"]]
        return sorted(names, key=lambda name: self.reached[name]["seconds"])

    def run(self, number):
        fault = self.faults[number]
        before = self.known.get(fault.key, {"caught": "", "tried": {}})
        if fault.key not in self.wanted or before["caught"]:
            return
        tried = dict(before["tried"])
        caught = ""
        begin = time.monotonic()
        for name in self.reaching(number):
            test = self.tests[name]
            if time.monotonic() - begin > self.patience:
                break
            if tried.get(name) == test.stamp:
                continue
            failure, _ = test.run(4 * self.reached[name]["seconds"] + 20, VD_MUTANT=str(number))
            tried[name] = test.stamp
            if failure:
                caught = f"{name}: {failure}"
                break
        self.note(fault, {"key": fault.key, "caught": caught, "tried": tried})

    def note(self, fault, entry):
        with self.lock, (PLACE / "results.jsonl").open("a", encoding="utf-8") as file:
            file.write(json.dumps(entry) + "\n")
            print(f"{'caught  ' if entry['caught'] else 'SURVIVES'} {fault.file}:{fault.line}  {entry['caught']}", flush=True)


# The report.

def explained():
    """Key of each fault in equivalent.txt, and why nothing can be seen of it."""
    text = re.sub(r"^#.*\n", "", EQUIVALENT.read_text(encoding="utf-8"), flags=re.M) if EQUIVALENT.exists() else ""
    entries = {}
    for block in filter(None, re.split(r"\n\s*\n", text.strip())):
        file, context, good, faulty, *why = block.split("\n")
        entries[(file, context[2:], good[2:], faulty[2:])] = " ".join(line.strip() for line in why)
    return entries


def stale(entries, texts):
    """Those whose lines are no longer in the sources."""
    for key in entries:
        keys = {fault.key for fault in mutate.faults_of(key[0], texts.get(key[0], ""))}
        if key not in keys:
            yield key


def report(texts, wanted):
    known, reasons = results(), explained()
    faults = [fault for file, text in texts.items() for fault in mutate.faults_of(file, text) if fault.key in wanted]
    run = [fault for fault in faults if fault.key in known]
    survivors = [fault for fault in run if not known[fault.key]["caught"]]
    numbers = {fault.key: number for number, fault in mutate.numbered(run).items()}
    for fault in survivors:
        tried = ", ".join(known[fault.key]["tried"]) or "no test"
        told = reasons.get(fault.key) or f"VD_MUTANT={numbers[fault.key]} survives {tried}"
        print(f"\n{fault}\n  {told}")
    for key in reasons:
        if known.get(key, {}).get("caught"):
            print(f"\nexplained, but caught: {key[0]}: {key[2]}")
    for key in stale(reasons, texts):
        print(f"\nexplained, but no longer there: {key[0]}: {key[2]}")
    table(faults, run, survivors, reasons)
    return [fault for fault in survivors if fault.key not in reasons]


def table(faults, run, survivors, reasons):
    print("\n| folder | faults | run | caught | explained | left |\n| --- | --- | --- | --- | --- | --- |")
    for folder in [*sorted({fault.folder for fault in faults}), "all"]:
        chosen, done, alive = (sum(folder in ("all", fault.folder) for fault in each) for each in (faults, run, survivors))
        told = sum(folder in ("all", fault.folder) and fault.key in reasons for fault in survivors)
        print(f"| `{folder}` | {chosen} | {done} | {done - alive} | {told} | {alive - told} |")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--patience", type=float, default=float("inf"))
    parser.add_argument("--report", action="store_true")
    arguments = parser.parse_args()
    PLACE.mkdir(parents=True, exist_ok=True)
    texts = mutate.sources(mutate.ROOT)
    broken = {tuple(key) for key in load("broken.json", [])}
    wanted = {fault.key for fault in mutate.chosen(texts, arguments.count, broken=broken)}
    if not arguments.report:
        faults, wanted = built_faults(arguments.count)
        with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
            hunt = Hunt(faults, wanted, baseline(faults, pool), arguments.patience)
            list(pool.map(hunt.run, sorted(faults)))  # so that a part of them is spread, too
    return 1 if report(texts, wanted) else 0


if __name__ == "__main__":
    sys.exit(main())
