#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Fails when a source file reaches, directly or through other headers, a folder that the layers put out of its reach,
and when header/source pairs of one library include each other in a circle (a.h and a.cpp are one pair).

    layers.py             checks the project
    layers.py --self-test plants forbidden includes in a copy and expects each to be found
"""

import pathlib
import re
import shutil
import sys
import tempfile

# What each layer may include, itself aside. A file belongs to the longest of these paths that it lies below; the picture
# is in docs/architecture.md.
FILES = {"files"}
HOST = {"host"}
RICHTEXT = {"richtext/css", "richtext/xhtml", "richtext/paper", "richtext/editor"}
FORMATS = {"designs/kicad", "designs/kicad/edit", "designs/csv", "designs/csv/edit"}
REACH = {
    "files": set(),
    "sheets": set(),
    "host": FILES,
    "richtext/css": set(),
    "richtext/xhtml": {"richtext/css"} | FILES,
    "richtext/paper": {"richtext/css", "richtext/xhtml"} | HOST,
    "richtext/editor": RICHTEXT | HOST,
    # The model.
    "designs": FILES,
    "designs/kicad": {"designs"} | FILES,
    "designs/kicad/edit": {"designs", "designs/kicad"},
    "designs/csv": {"designs"} | FILES,
    "designs/csv/edit": {"designs", "designs/csv"},
    "designs/formats": {"designs"} | FORMATS | FILES,
    "designs/transaction": {"designs"} | FILES,
    "standalone": {"designs", "designs/formats", "designs/csv", "designs/transaction"} | HOST | FILES,
    "templates": {"richtext/css", "richtext/xhtml"} | HOST | FILES,
    "core": {"templates"} | HOST | FILES,
    "fitting": {"standalone", "templates"} | HOST,
    "account/design": {"standalone"} | HOST,
    "account": {"account/design", "core", "templates", "standalone"} | HOST,
    "views/report": {"core", "templates", "richtext/css", "richtext/xhtml"} | HOST,
    "views": {"views/report", "core", "templates"} | RICHTEXT | HOST,
    "editors": {"core", "templates", "richtext/xhtml"} | HOST,
    "module": {"editors", "views", "views/report", "core", "templates"} | RICHTEXT | HOST,
    "cli": {"account", "account/design", "fitting", "views", "views/report", "core", "templates", "standalone", "sheets"}
    | RICHTEXT | HOST | FILES,
    "app": {"account/design", "fitting", "standalone", "templates"} | RICHTEXT | HOST,
}
# What a layer reaches through one that stands between: standalone is built on designs, and who uses standalone sees
# its headers.
DESIGNS = {"designs", "designs/transaction"}
THROUGH = {"account/design": DESIGNS, "account": DESIGNS, "fitting": DESIGNS, "cli": DESIGNS, "app": DESIGNS}
# Layers, or folders of one, that do without Qt's widgets.
NO_WIDGETS = {
    "files", "sheets", "designs", "standalone", "templates", "core", "account", "fitting", "views/report", "host/framework",
    "host/netlist",
    "host/propdefs",
}
WIDGET_HEADER = re.compile(
    r"^(QWidget|QDialog|QMainWindow|QMessageBox|QFileDialog|QApplication|QDesktopServices|QTable\w+|QTree\w+|QLabel"
    r"|QPushButton|QLineEdit|QTextEdit|QTextDocument|QPainter|QtWidgets|QtGui)"
)
NOT_CORE = re.compile(r"^(Qt(Gui|Widgets)/|QColor$|QFont$|QImage$|QPixmap$|QIcon$|QGuiApplication$)")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^">]+)[">]', re.MULTILINE)


def includes(path):
    text = path.read_text(encoding="utf-8")
    for match in INCLUDE.finditer(text):
        yield match.group(1), match.group(2), text.count("\n", 0, match.start()) + 1


def project_includes(root, path):
    return [(root / name, line) for kind, name, line in includes(path) if kind == '"' and (root / name).is_file()]


def closure(root, path, known):
    """Every project header that a file reaches, with the chain that leads there."""
    reached = {}
    stack = [(path, [path])]
    while stack:
        current, chain = stack.pop()
        if current not in known:
            known[current] = project_includes(root, current)
        for header, _ in known[current]:
            if header not in reached:
                reached[header] = chain + [header]
                stack.append((header, chain + [header]))
    return reached


def layer_of(root, path):
    """The layer that a file belongs to, None for what is in no layer, such as tests."""
    parts = path.relative_to(root).parts[:-1]
    layers = ("/".join(parts[:length]) for length in range(len(parts), 0, -1))
    return next((layer for layer in layers if layer in REACH), None)


def has_no_widgets(root, path):
    relative = path.relative_to(root).as_posix()
    return any(relative.startswith(folder + "/") for folder in NO_WIDGETS)


def check_file(root, path, known):
    layer = layer_of(root, path)
    if layer is None:
        return [f"{path.relative_to(root)}: belongs to no layer"]
    direct = REACH[layer] | {layer}
    problems = []
    for header, line in project_includes(root, path):
        if layer_of(root, header) not in direct:
            problems.append(f"{path.relative_to(root)}:{line}: {layer}/ may not include {header.relative_to(root)}")
    for header, chain in closure(root, path, known).items():
        target = layer_of(root, header)
        if len(chain) > 2 and target not in direct | THROUGH.get(layer, set()):
            way = " > ".join(str(step.relative_to(root)) for step in chain)
            problems.append(f"{path.relative_to(root)}: {layer}/ may not reach {target}/: {way}")
    if has_no_widgets(root, path):
        for kind, name, line in includes(path):
            if kind == "<" and (WIDGET_HEADER.match(name) or NOT_CORE.match(name)):
                problems.append(f"{path.relative_to(root)}:{line}: {layer}/ does without <{name}>")
    return problems


def pair_of(root, path):
    """A header and its source by their common path; a source X_y.cpp belongs to X where there is an X.h."""
    pair = path.relative_to(root).with_suffix("")
    owner = pair.with_name(pair.name.split("_")[0])
    return owner.as_posix() if (root / f"{owner}.h").is_file() else pair.as_posix()


def reachable(start, targets):
    """The nodes that a step or more leads to."""
    reached = set()
    stack = [start]
    while stack:
        for target in targets.get(stack.pop(), ()):
            if target not in reached:
                reached.add(target)
                stack.append(target)
    return reached


def check_cycles(root, known):
    """One problem for each set of pairs of which each reaches all others."""
    targets = {}
    for path, headers in known.items():
        pair = pair_of(root, path)
        targets.setdefault(pair, set()).update({pair_of(root, header) for header, _ in headers} - {pair})
    reached = {pair: reachable(pair, targets) for pair in targets}
    in_circles = [pair for pair in reached if pair in reached[pair]]
    cycles = {frozenset(other for other in reached[pair] if pair in reached[other]) for pair in in_circles}
    return [f"{', '.join(sorted(cycle))}: include each other in a circle" for cycle in sorted(cycles, key=sorted)]


def folders():
    """The top folders that hold layers."""
    return sorted({layer.split("/")[0] for layer in REACH})


def check(root):
    problems = []
    known = {}
    for folder in folders():
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                problems += check_file(root, path, known)
    return problems + check_cycles(root, known)


PLANTS = [
    ("core/planted.cpp", '#include "designs/design.h"\n', "core/ may not include designs/design.h"),
    ("views/planted.cpp", '#include "standalone/planted.h"\n', "views/ may not include standalone/planted.h"),
    ("host/framework/planted.h", '#include "core/planted2.h"\n', "host/ may not include core/planted2.h"),
    ("templates/planted.cpp", '#include "host/framework/planted.h"\n', "templates/ may not reach core/"),
    ("richtext/css/planted.cpp", '#include "richtext/editor/textedit.h"\n', "richtext/css/ may not include richtext/editor"),
    ("designs/planted.cpp", "#include <QWidget>\n", "designs/ does without <QWidget>"),
    ("views/report/planted.cpp", "#include <QTextDocument>\n", "views/report/ does without <QTextDocument>"),
    ("views/report/planted2.cpp", '#include "richtext/paper/pagepainter.h"\n',
     "views/report/ may not include richtext/paper"),
    ("designs/kicad/planted.cpp", '#include "designs/kicad/edit/editmodel.h"\n', "designs/kicad/ may not include"),
    ("designs/planted2.cpp", '#include "designs/csv/csvfile.h"\n', "designs/ may not include designs/csv/csvfile.h"),
    ("cli/planted.cpp", '#include "designs/design.h"\n', "cli/ may not include designs/design.h"),
    ("editors/ring.h", '#include "editors/ring2.h"\n', "editors/ring, editors/ring2, editors/ring3: include each other"),
    ("editors/ring2_half.cpp", '#include "editors/ring3.h"\n', "editors/ring, editors/ring2, editors/ring3: include each other"),
    ("editors/ring3.cpp", '#include "editors/ring.h"\n', "editors/ring, editors/ring2, editors/ring3: include each other"),
]


def self_test(root):
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder)
        for name in folders():
            if (root / name).is_dir():
                shutil.copytree(root / name, copy / name)
        for name in ("standalone/planted.h", "core/planted2.h", "editors/ring2.h", "editors/ring3.h"):
            (copy / name).write_text("#pragma once\n", encoding="utf-8")
        for name, text, _ in PLANTS:
            (copy / name).write_text(text, encoding="utf-8")
        found = "\n".join(check(copy))
    return [f"not found when planted: {expected}" for _, _, expected in PLANTS if expected not in found]


def main():
    root = pathlib.Path(__file__).resolve().parents[2]
    problems = self_test(root) if "--self-test" in sys.argv else check(root)
    print("\n".join(problems) if problems else "layers: every include points downwards, none in a circle")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
