#!/usr/bin/env python3
"""Chooses one-line faults in the sources, and writes a tree that has them all, each behind a switch.

    mutate.py [COUNT]    lists those that would be chosen

In that tree a fault is an expression or a statement that asks `vdMutant(number)` (mutant.h) which of two it is, so that
one build serves for all of them. The choice depends on nothing but the seed and the lines themselves: a change of other
lines leaves it as it is. run.py builds the tree and runs the tests on each fault.
"""
import hashlib
import os
import re
import subprocess
import sys
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parents[2]
HEADER = "tests/mutation/mutant.h"
SOURCES = ("apps", "comparison", "designer", "reading", "vdpatterndesign", "vdtranslate", "vdwidget", "walls")
ROOMS = ("apps", "vdpatterndesign")  # whose folders count by themselves
NUMBER = "@@"  # stands for the fault's number until it has one


class Fault(NamedTuple):
    file: str
    line: int  # from 1
    context: str  # the line before it, which tells apart what is written twice
    text: str
    faulty: str
    switched: str
    kind: str

    @property
    def key(self):
        return (self.file, self.context, self.text, self.faulty)

    @property
    def folder(self):
        return folder_of(self.file)

    def __str__(self):
        return f"{self.file}:{self.line}\n  {self.context}\n- {self.text}\n+ {self.faulty}"


class Edit(NamedTuple):
    """What stands between two columns of a line instead: as a fault, and with its switch."""
    kind: str
    start: int
    end: int
    faulty: str
    switched: str

    @staticmethod
    def choice(kind, start, end, good, faulty):
        return Edit(kind, start, end, faulty, f"(vdMutant({NUMBER}) ? ({faulty}) : ({good}))")


# Reading a line. All of it goes by "blank" text, in which comments and what is quoted are filled.

QUOTED = re.compile(r"""R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)'(?:\\.|[^'\\\n])+'|//[^\n]*|/\*.*?\*/""", re.S)
STOP = re.compile(r"[,;]| (?:[-+*/%|&^]|<<|>>)?= | \? | : |\b(?:return|else|emit|throw)\b")
PAIRS = {")": "(", "]": "[", "}": "{"}


def blanked(text):
    def fill(match):
        character = " " if match[0].startswith("/") else '"'
        return re.sub(r"[^\n]", character, match[0])
    return QUOTED.sub(fill, text)


def pairs(blank):
    """The brackets that are opened and closed in the line: columns after the one and of the other; inner ones first."""
    opened = []
    for column, character in enumerate(blank):
        if character in PAIRS.values():
            opened.append(column)
        elif character in PAIRS and opened:
            yield opened.pop() + 1, column


def closing(blank, start):
    return next((end for begin, end in pairs(blank) if begin == start), None)


def is_balanced(blank):
    return all(blank.count(left) == blank.count(right) for right, left in PAIRS.items())


def depth(blank):
    return sum(blank.count(left) - blank.count(right) for right, left in PAIRS.items())


def extent(blank, start, end):
    """The columns of the whole expression that an operator stands in; nothing where it goes on in other lines."""
    inner = next(((left, right) for left, right in pairs(blank) if left <= start and end <= right), None)
    if not inner and not is_balanced(blank):
        return None
    low, high = inner or (0, len(blank))
    stops = [stop for stop in STOP.finditer(blank, low, high) if depth(blank[low:stop.start()]) == 0]
    left = max((stop.end() for stop in stops if stop.end() <= start), default=low if inner else None)
    right = min((stop.start() for stop in stops if stop.start() >= end), default=high if inner else None)
    if left is None or right is None or "{" in blank[left:right]:
        return None
    left += len(blank[left:start]) - len(blank[left:start].lstrip())
    return left, right


# Kinds of faults. Each gives the edits that a line allows; what does not compile is found by building it.

SWAPPED = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
           "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&&": "||", "||": "&&"}
OPERATOR = re.compile(r" (&&|\|\||[=!]=|[<>]=?|[-+*/%]) ")
OF_TEXTS = re.compile(r"\"|QString|QLatin1|QChar|tr\(")
STATEMENT = re.compile(r"(?:(?:Q_EMIT|emit|delete) |\+\+|--)?[A-Za-z_][\w:]*(?:(?:\.|->)\w+|\([^()]*\)|\[[^\[\]]*\])*"
                       r"(?:\(.*\)|(?: [-+*/|&]?= ).*|\+\+|--)?;|break;|continue;")


def swapped_operators(blank, line, _before):
    for match in OPERATOR.finditer(blank):
        found = extent(blank, match.start(), match.end())
        if not found or (match[1] == "+" and OF_TEXTS.search(line, *found)):
            continue
        faulty = line[found[0]:match.start(1)] + SWAPPED[match[1]] + line[match.end(1):found[1]]
        yield Edit.choice("operator", *found, line[slice(*found)], faulty)


def other_numbers(blank, _line, _before):
    for match in re.finditer(r"(?<![\w.])\d+(?:\.\d+)?(?![\w.'])", blank):
        whole, point, rest = match[0].partition(".")
        yield Edit.choice("number", *match.span(), match[0], str(int(whole) + 1) + point + rest)


def other_truths(blank, _line, _before):
    for match in re.finditer(r"\b(?:true|false)\b", blank):
        yield Edit.choice("truth", *match.span(), match[0], "false" if match[0] == "true" else "true")


def negated_conditions(blank, line, _before):
    for match in re.finditer(r"\b(?:if|while) \(", blank):
        end = closing(blank, match.end())
        if end and not re.search(r" = |;", blank[match.end():end]):
            condition = line[match.end():end]
            yield Edit("condition", match.end(), end, f"!({condition})",
                       f"vdMutant({NUMBER}) != static_cast<bool>({condition})")


def other_extremes(blank, line, _before):
    for match in re.finditer(r"\bstd::(min|max)(?:<\w+>)?\(", blank):
        end = closing(blank, match.end())
        if end:
            call = line[match.start():end + 1]
            faulty = call.replace(match[1], "max" if match[1] == "min" else "min", 1)
            yield Edit.choice("extreme", match.start(), end + 1, call, faulty)


def empty_returns(blank, line, _before):
    match = re.search(r"\breturn (?!\{\}|0;|nullptr;|std::nullopt;|false;|true;|\w+\(\);).*;$", blank)
    if match and is_balanced(blank[match.start():]):
        yield Edit("return", *match.span(), "return {};", f"{{ if (vdMutant({NUMBER})) return {{}}; {line[match.start():]} }}")


def left_out_statements(blank, line, before):
    start = len(blank) - len(blank.lstrip())
    begins = before.endswith((";", "{", "}", ")", ":", "else"))
    if begins and STATEMENT.fullmatch(blank, start) and is_balanced(blank):
        yield Edit("statement", start, len(line), ";", f"{{ if (!vdMutant({NUMBER})) {line[start:]} }}")


KINDS = (swapped_operators, other_numbers, other_truths, negated_conditions, other_extremes, empty_returns,
         left_out_statements)
NO_CODE = re.compile(r"\s*(?:#|static_assert|using |template|namespace|enum |class |struct |case |friend |Q_[A-Z]+\(|$)")


# Choosing.

def rank(*words):
    return hashlib.sha256("\0".join(words).encode()).hexdigest()


def fault_of_line(file, number, blank, line, before, seed):
    """The line's one fault: of a kind by chance, so that long lines of numbers are not preferred."""
    blank = blank.rstrip()
    line = line[:len(blank)]
    edits = [edit for kind in KINDS for edit in kind(blank, line, before)]
    if NO_CODE.match(blank) or not edits:
        return None
    kind = min({edit.kind for edit in edits}, key=lambda kind: rank(seed, kind, file, before, line))
    edit = min((edit for edit in edits if edit.kind == kind), key=lambda edit: rank(seed, edit.faulty, str(edit.start)))
    faulty, switched = (line[:edit.start] + new + line[edit.end:] for new in (edit.faulty, edit.switched))
    switched = re.sub(r"\bconstexpr\b(?! auto)", "const", switched)
    return Fault(file, number, before.strip(), line.strip(), faulty.strip(), switched, kind)


def faults_of(file, text, seed="1"):
    """One fault for each line that allows one; what is written twice after the same line counts once."""
    found = {}
    before, shown = "", ""
    for number, (blank, line) in enumerate(zip(blanked(text).split("\n"), text.split("\n")), 1):
        fault = fault_of_line(file, number, blank, line, before, seed)
        if fault:
            fault = fault._replace(context=shown)
            found.setdefault((fault.context, fault.text), fault)
        if blank.strip():
            before, shown = blank.rstrip(), line[:len(blank.rstrip())].strip()
    return list(found.values())


def folder_of(file):
    return "/".join(file.split("/")[:2 if file.startswith(ROOMS) else 1])


def shares(sizes, count):
    """So many for each folder, by its lines, at least one; the largest remainders get what is left."""
    total = sum(sizes.values())
    exact = {folder: count * size / total for folder, size in sizes.items()}
    given = {folder: max(1, int(share)) for folder, share in exact.items()}
    by_remainder = sorted(exact, key=lambda folder: int(exact[folder]) - exact[folder])
    for folder in by_remainder[:max(0, count - sum(given.values()))]:
        given[folder] += 1
    return given


def listed(root, *options):
    command = ["git", "ls-files", "--cached", "--exclude-standard", *options]
    return subprocess.run(command, cwd=root, check=True, capture_output=True, text=True).stdout.splitlines()


def sources(root):
    return {file: (root / file).read_text(encoding="utf-8") for file in listed(root, *SOURCES)
            if file.endswith((".cpp", ".h")) and (root / file).is_file()}


def chosen(texts, count, seed="1", broken=()):
    """So many faults, spread over the folders by their lines, of each kind as many where there are; none that is broken."""
    sizes = {}
    candidates = {}
    for file, text in texts.items():
        sizes[folder_of(file)] = sizes.get(folder_of(file), 0) + text.count("\n")
        candidates.setdefault(folder_of(file), []).extend(faults_of(file, text, seed))
    result = []
    for folder, share in sorted(shares(sizes, count).items()):
        good = [fault for fault in candidates[folder] if fault.key not in broken]
        result += in_turn(sorted(good, key=lambda fault: rank(seed, *fault.key)))[:share]
    return result


def in_turn(faults):
    """The first of each kind, then the second of each, and so on."""
    seen = {}
    turns = []
    for place, fault in enumerate(faults):
        seen[fault.kind] = seen.get(fault.kind, 0) + 1
        turns.append((seen[fault.kind], place, fault))
    return [fault for _, _, fault in sorted(turns)]


# Writing.

def numbered(faults):
    """By numbers that stay as they are when others come and go: what has them is not built anew."""
    numbers = {}
    for fault in sorted(faults, key=lambda fault: fault.key):
        number = int(rank(*fault.key)[:5], 16)
        while number in numbers:
            number += 1
        numbers[number] = fault
    return numbers


def switched_text(text, numbers, include):
    lines = text.split("\n")
    for number, fault in numbers:
        lines[fault.line - 1] = fault.switched.replace(NUMBER, str(number))
    return f'#include "{include}"\n' + "\n".join(lines)


def write(path, contents):
    """Only what is new, so that the next build takes only that."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_bytes() != contents:
        path.write_bytes(contents)


def write_tree(root, target, faults):
    """The sources with all the faults, each with its number."""
    by_file = {}
    for number, fault in numbered(faults).items():
        by_file.setdefault(fault.file, []).append((number, fault))
    for file in listed(root, "--others"):
        source = root / file
        if file in by_file:
            include = os.path.relpath(HEADER, os.path.dirname(file))
            text = switched_text(source.read_text(encoding="utf-8"), by_file[file], include)
            write(target / file, text.encode())
        elif source.is_file():
            write(target / file, source.read_bytes())
            (target / file).chmod(source.stat().st_mode)


def main():
    faults = chosen(sources(ROOT), int(sys.argv[1]) if len(sys.argv) > 1 else 200)
    print("\n\n".join(map(str, faults)))


if __name__ == "__main__":
    main()
