#!/usr/bin/env python3
"""Whether tests/mutation/mutate.py makes the faults that it should, spreads them, and writes them behind their switches."""
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "mutation"))
import mutate  # noqa: E402
import run  # noqa: E402

# A line after another one, and all that may become of it.
LINES = [
    ("{", "    if (a < b && isFree())", ["    if (a <= b && isFree())", "    if (a < b || isFree())",
                                        "    if (!(a < b && isFree()))"]),
    ("{", "    if (const int room = f())", []),
    (";", "    const int x = y + 2 * z; // a + b", ["    const int x = y - 2 * z;", "    const int x = y + 2 / z;",
                                               "    const int x = y + 3 * z;"]),
    (";", '    const QString x = a + "b 3 + true";', []),
    (";", "    f(c ? a - b : 0.5);", ["    f(c ? a + b : 0.5);", "    f(c ? a - b : 1.5);", "    ;"]),
    ("= f(a", "        + b * c);", []),  # an expression that goes on
    ("(", "        g(b * c), true);", ["        g(b / c), true);", "        g(b * c), false);"]),
    ("{", "    return std::min(a, 1);", ["    return std::max(a, 1);", "    return std::min(a, 2);", "    return {};"]),
    ("{", "    return {};", []),
    (";", "    m_size = size;", ["    ;"]),
    (";", "    const QSize size = f();", []),
    (";", "    list[i].at(f()).clear();", ["    ;"]),
    ("(a,", "    b.size());", []),
    ("case 4:", "    break;", ["    ;"]),
    ("", "constexpr int room = 4;", ["constexpr int room = 5;"]),
    ("", "#define ROOM 4", []),
    ("", "    case 4:", []),
    ("", "/* if (a < b) */ // true", []),
]

SOURCE = "int f(int a)\n{\n    if (a < 3)\n        return a;\n    g();\n    if (a < 3)\n        return a;\n    return 1;\n}\n"


def check(what, seen, wanted):
    if seen != wanted:
        print(f"{what}:\n  {seen}\n  instead of\n  {wanted}")
    return seen == wanted


def lines():
    for before, line, wanted in LINES:
        blank = mutate.blanked(line).rstrip()
        good = line[:len(blank)]
        edits = [] if mutate.NO_CODE.match(blank) else [e for kind in mutate.KINDS for e in kind(blank, good, before)]
        faulty = [good[:edit.start] + edit.faulty + good[edit.end:] for edit in edits]
        yield check(line, sorted(faulty), sorted(wanted))


def choice():
    yield check("shares", mutate.shares({"a": 100, "b": 50, "c": 1}, 10), {"a": 6, "b": 3, "c": 1})
    texts = {"apps/x/a.cpp": SOURCE, "walls/b.cpp": SOURCE}
    faults = mutate.chosen(texts, 4)
    yield check("the folders", [fault.folder for fault in faults], ["apps/x", "apps/x", "walls", "walls"])
    yield check("the same again", mutate.chosen(texts, 4), faults)
    others = mutate.chosen(texts, 4, broken={faults[0].key})
    yield check("without a broken one", len(others) == 4 and faults[0] not in others, True)
    yield check("lines that are written twice count once", len(mutate.faults_of("walls/b.cpp", SOURCE)), 5)
    below = mutate.chosen({**texts, "walls/b.cpp": "int x;\n" + SOURCE}, 4)
    yield check("other lines change nothing", [fault.key for fault in below], [fault.key for fault in faults])


def tree():
    """Compiled, the sample does as it did, and otherwise with a fault switched on."""
    faults = [fault for fault in mutate.faults_of("walls/f.cpp", SOURCE) if fault.line in (3, 5)]
    with tempfile.TemporaryDirectory() as folder:
        text = mutate.switched_text(SOURCE, enumerate(faults), mutate.ROOT / mutate.HEADER)
        source = pathlib.Path(folder) / "f.cpp"
        source.write_text("#include <cstdio>\nstatic void g() { std::puts(\"met\"); }\n" + text +
                          "int main() { return f(4); }\n", encoding="utf-8")
        subprocess.run(["c++", "-std=c++17", "-Wall", "-Wextra", "-Werror", source, "-o", source.with_suffix("")], check=True)
        reached = pathlib.Path(folder) / "reached"
        reached.touch()

        def met(number):
            variables = {"VD_MUTANT": number, "VD_MUTANTS_REACHED": str(reached)}
            done = subprocess.run([source.with_suffix("")], env=variables, stdout=subprocess.PIPE, check=False)
            return done.stdout != b""
        statement = next(str(number) for number, fault in enumerate(faults) if fault.kind == "statement")
        yield check("switched off", met("99"), True)
        yield check("noted, once each", sorted(reached.read_text().split()), ["0", "1"])
        yield check("switched on", met(statement), False)


def explanations():
    """Each stands for a fault that there is still."""
    entries = run.explained()
    texts = {file: (mutate.ROOT / file).read_text(encoding="utf-8") for file, *_ in entries}
    yield check("explained, but not there", list(run.stale(entries, texts)), [])


passed = [each for group in (lines, choice, tree, explanations) for each in group()]
sys.exit(0 if all(passed) else 1)
