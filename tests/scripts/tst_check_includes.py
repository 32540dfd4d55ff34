#!/usr/bin/env python3
"""Whether scripts/check_includes.py finds what points the wrong way, in small trees of sources."""
import pathlib
import subprocess
import sys
import tempfile

SCRIPT = pathlib.Path(__file__).parents[2] / "scripts/check_includes.py"

TREE = {
    "vdtranslate/CMakeLists.txt": "vd_library(vdtranslate SOURCES translator.cpp PUBLIC_HEADERS translator.h LINK Core)",
    "vdtranslate/translator.h": "class VDTRANSLATE_EXPORT Translator\n{\n};\n",
    "vdwidget/CMakeLists.txt": "vd_library(vdwidget SOURCES combobox.cpp PUBLIC_HEADERS combobox.h LINK Widgets)",
    "vdwidget/combobox.h": "#include <QComboBox>\n",
    "vdpatterndesign/CMakeLists.txt": "PUBLIC_HEADERS records/record.h painters/layer.h LINK Gui)",
    "vdpatterndesign/support/words.h": "#include <translator.h>\n",
    "vdpatterndesign/records/record.h": "#include <QString>\n",
    "vdpatterndesign/geometry/grid.h": '#include "record.h"\n',
    "vdpatterndesign/layers/ink.h": '#include "geometry/grid.h"\n',
    "vdpatterndesign/painters/layer.h": '#include "record.h"\n',
    "vdpatterndesign/panels/panel.cpp": '#include "layer.h"\n#include <combobox.h>\n',
    "comparison/CMakeLists.txt": "PUBLIC_HEADERS finding.h LINK Gui)",
    "comparison/finding.h": '#include "record.h"\n',
    "reading/CMakeLists.txt": "PUBLIC_HEADERS reading.h LINK Gui)",
    "reading/reading.h": "#include <finding.h>\n",
    "apps/common/font.h": "",
    "apps/desk/main.cpp": '#include "font.h"\n#include <layer.h>\n',
}

# What is changed, to what, and what is said of it; nothing where all is in order.
CASES = {
    "in order": ({}, ""),
    "records on layers": ({"records/record.h": '#include "layers/ink.h"\n'}, "ink.h is of the room layers"),
    "by the bare name": ({"support/words.h": '#include "grid.h"\n'}, "grid.h is of the room geometry"),
    "painters on panels": ({"painters/layer.cpp": '#include "panels/panel.h"\n', "panels/panel.h": ""},
                           "panel.h is of the room panels"),
    "a widget in the core": ({"layers/ink.cpp": "#include <QLabel>\n"}, "QLabel is of the widgets"),
    "the widget library in the core": ({"geometry/grid.h": "#include <combobox.h>\n"}, "combobox.h is of vdwidget"),
    "upwards from a lower library": ({"../vdtranslate/translator.h": '#include "record.h"\n'}, "is above vdtranslate"),
    "the comparison on the reading": ({"../comparison/finding.h": "#include <reading.h>\n"},
                                      "reading.h is of reading, which comparison may not include"),
    "the reading on the editor": ({"../reading/reading.h": "#include <layer.h>\n"},
                                  "layer.h is of vdpatterndesign, which reading may not include"),
    "a private header in a program": ({"../apps/desk/main.cpp": "#include <ink.h>\n"}, "ink.h is no public header"),
    "a public header by its room": ({"../apps/desk/main.cpp": '#include "painters/layer.h"\n'}, "by its bare name"),
    "private in public": ({"painters/layer.h": '#include "layers/ink.h"\n'}, "layers/ink.h is no public header"),
    "a class of another name": ({"painters/layer.h": "class VD_EXPORT Painter : public QLabel\n"}, "class Painter"),
    "two headers of one name": ({"panels/ink.h": ""}, "another header has that name"),
    "a room that nobody knows": ({"attic/old.h": ""}, "vdpatterndesign/attic: no room"),
}


def run(changes):
    with tempfile.TemporaryDirectory() as folder:
        tree = TREE | {str(pathlib.PurePath("vdpatterndesign") / path): text for path, text in changes.items()}
        for path, text in tree.items():
            file = (pathlib.Path(folder) / path).resolve()
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        return subprocess.run([sys.executable, SCRIPT, folder], capture_output=True, text=True, check=False)


failures = 0
for name, (changes, expected) in CASES.items():
    result = run(changes)
    output = result.stdout + result.stderr
    passed = result.returncode == (1 if expected else 0) and (expected in output if expected else not output)
    failures += not passed
    print(f"{'PASS' if passed else 'FAIL'}: {name}{'' if passed else ': ' + output}")
sys.exit(failures > 0)
