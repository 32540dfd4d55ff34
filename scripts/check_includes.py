#!/usr/bin/env python3
"""Reads the includes of the sources and tells each that points the wrong way: scripts/check_includes.py [root].

A room may include itself and what `ROOMS` names for it. The programs include public headers of the libraries only.
Every header is included by a name that is found in the build tree and installed, and a class stands in the file of its
name.
"""
import pathlib
import re
import sys

SUPPORT, PICTURES, RECORDS, GEOMETRY, LAYERS = "support", "pictures", "records", "geometry", "layers"
CORE = [SUPPORT, PICTURES, RECORDS, GEOMETRY, LAYERS]

# Room: what it may include besides itself. Downwards only.
ROOMS = {
    SUPPORT: [],
    PICTURES: [SUPPORT],
    RECORDS: [SUPPORT],
    GEOMETRY: [SUPPORT, RECORDS],
    LAYERS: [SUPPORT, PICTURES, RECORDS, GEOMETRY],
    "theme": [SUPPORT],
    "controls": [*CORE, "theme"],
    "painters": CORE,
    "dialogs": [*CORE, "theme", "controls"],
    "panels": [*CORE, "theme", "controls", "painters", "dialogs"],
    "editor": [*CORE, "theme", "controls", "painters", "dialogs", "panels"],
}
LIBRARY = "vdpatterndesign"
BELOW_ALL = ["vdtranslate"]
BESIDE = ["comparison", "walls", "reading"]  # libraries on the core, where they are there
BELOW = {"reading": ["comparison"]}  # what they may include of one another
WIDGETS = ["vdwidget"]
OF_QT_WIDGETS = re.compile(r"Q(tWidgets|Widget|Application|Label|\w*Dialog|\w*Button|\w*Edit|\w*Box|(Box|HBox|VBox|Grid)Layout)")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
EXPORTED_CLASS = re.compile(r"^class\s+[A-Z]+_EXPORT\s+(\w+)", re.M)


class Checker:
    def __init__(self, root):
        self.root = root
        self.problems = []
        self.headers = {}  # name of the file: (library, room)
        self.libraries = [LIBRARY, "vdtranslate", "vdwidget"]
        self.libraries += [library for library in BESIDE if (root / library).is_dir()]
        for library in self.libraries:
            for header in (root / library).rglob("*.h"):
                self.add(library, header)

    def add(self, library, header):
        room = header.parent.name if library == LIBRARY else ""
        if header.name in self.headers:
            self.tell(header, f"another header has that name, in {'/'.join(self.headers[header.name])}")
        self.headers[header.name] = (library, room)

    def tell(self, file, problem):
        self.problems.append(f"{file.relative_to(self.root)}: {problem}")

    def includes(self, file):
        for bracket, name in INCLUDE.findall(file.read_text(encoding="utf-8")):
            yield bracket, name

    def public_headers(self):
        public = set()
        for library in self.libraries:
            text = (self.root / library / "CMakeLists.txt").read_text(encoding="utf-8")
            for block in re.findall(r"PUBLIC_HEADERS\s+(.*?)(?:LINK|\))", text, re.S):
                public.update(pathlib.PurePath(word).name for word in block.split())
        return public

    def check_room(self, room):
        for file in sorted((self.root / LIBRARY / room).glob("*.*")):
            for _, name in self.includes(file):
                self.check_include(file, room, name)

    def check_include(self, file, room, name):
        if room in CORE and OF_QT_WIDGETS.fullmatch(pathlib.PurePath(name).name):
            self.tell(file, f"{name} is of the widgets; the room {room} is without")
        target = self.headers.get(pathlib.PurePath(name).name)
        if target is None:
            return
        library, other = target
        if library == LIBRARY and other != room and other not in ROOMS[room]:
            self.tell(file, f"{name} is of the room {other}, which {room} may not include")
        if library in WIDGETS and room in CORE:
            self.tell(file, f"{name} is of {library}, and the room {room} is without widgets")
        if library not in [LIBRARY, *BELOW_ALL, *WIDGETS]:
            self.tell(file, f"{name} is of {library}, which is beside the editor")

    def check_lower_library(self, library):
        allowed = [library, *BELOW_ALL, *BELOW.get(library, [])]
        for file in sorted([*(self.root / library).rglob("*.h"), *(self.root / library).rglob("*.cpp")]):
            for _, name in self.includes(file):
                target = self.headers.get(pathlib.PurePath(name).name)
                if target and target[0] not in allowed and not self.is_core(target):
                    self.tell(file, f"{name} is of {target[0]}, which {library} may not include")
                if target and library in ["vdtranslate", "vdwidget"] and target[0] == LIBRARY:
                    self.tell(file, f"{name} is of {LIBRARY}, which is above {library}")

    @staticmethod
    def is_core(target):
        return target[0] == LIBRARY and target[1] in CORE

    def check_hosts(self):
        public = self.public_headers()
        hosts = [*(self.root / "apps").rglob("*.*"), *(self.root / "examples").rglob("*.cpp")]
        for file in sorted(f for f in hosts if f.suffix in (".h", ".cpp")):
            own = {f.name for f in file.parent.glob("*.h")} | {f.name for f in (self.root / "apps/common").glob("*.h")}
            for _, name in self.includes(file):
                if name in own or pathlib.PurePath(name).name not in self.headers:
                    continue
                if name not in public:
                    self.tell(file, f"{name} is no public header, by its bare name")

    def check_public_headers(self):
        """They include one another by their bare names: that is how they are installed."""
        public = self.public_headers()
        for name in sorted(public):
            if name not in self.headers:
                self.problems.append(f"{name} is public, but there is no such header")
                continue
            library, room = self.headers[name]
            header = self.root / library / room / name
            for _, other in self.includes(header):
                if pathlib.PurePath(other).name in self.headers and other not in public:
                    self.tell(header, f"{other} is no public header, by its bare name")
            for found in EXPORTED_CLASS.findall(header.read_text(encoding="utf-8")):
                if found.lower() != header.stem:
                    self.tell(header, f"the class {found} stands in the file of another name")

    def run(self):
        unknown = {f.parent.name for f in (self.root / LIBRARY).rglob("*.h")} - set(ROOMS)
        self.problems += [f"{LIBRARY}/{room}: no room that is known" for room in sorted(unknown)]
        for room in ROOMS:
            self.check_room(room)
        for library in self.libraries:
            if library != LIBRARY:
                self.check_lower_library(library)
        self.check_hosts()
        self.check_public_headers()
        return self.problems


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent).resolve()
    problems = Checker(root).run()
    for problem in problems:
        print(problem)
    return 1 if problems else 0


sys.exit(main())
