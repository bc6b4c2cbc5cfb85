#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Fails when a source file reaches, directly or through other headers, a folder that the layers put out of its reach.

    layers.py             checks the project
    layers.py --self-test plants forbidden includes in a copy and expects each to be found
"""

import pathlib
import re
import shutil
import sys
import tempfile

# What each folder may include, itself aside. The picture is in docs/architecture.md.
REACH = {
    "host": set(),
    "designs": set(),
    "standalone": {"designs", "host"},
    "templates": {"host"},
    "core": {"templates", "host"},
    "views": {"core", "templates", "host"},
    "editors": {"core", "templates", "host"},
    "module": {"editors", "views", "core", "templates", "host"},
    "cli": {"views", "core", "templates", "standalone", "host"},
    "app": {"standalone", "host"},
}
# What a folder reaches through one that stands between: standalone is built on designs, and who uses standalone sees
# its headers.
THROUGH = {"cli": {"designs"}, "app": {"designs"}}
# Qt modules that a folder does without.
NO_WIDGETS = {"designs", "standalone", "templates", "core", "host/framework", "host/netlist", "host/propdefs"}
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


def folder_of(root, path):
    return path.relative_to(root).parts[0]


def has_no_widgets(root, path):
    relative = path.relative_to(root).as_posix()
    return any(relative.startswith(folder + "/") for folder in NO_WIDGETS)


def check_file(root, path, known):
    folder = folder_of(root, path)
    direct = REACH[folder] | {folder}
    problems = []
    for header, line in project_includes(root, path):
        if folder_of(root, header) in REACH and folder_of(root, header) not in direct:
            problems.append(f"{path.relative_to(root)}:{line}: {folder}/ may not include {header.relative_to(root)}")
    for header, chain in closure(root, path, known).items():
        target = folder_of(root, header)
        if len(chain) > 2 and target in REACH and target not in direct | THROUGH.get(folder, set()):
            way = " > ".join(str(step.relative_to(root)) for step in chain)
            problems.append(f"{path.relative_to(root)}: {folder}/ may not reach {target}/: {way}")
    if has_no_widgets(root, path):
        for kind, name, line in includes(path):
            if kind == "<" and (WIDGET_HEADER.match(name) or NOT_CORE.match(name)):
                problems.append(f"{path.relative_to(root)}:{line}: {folder}/ does without <{name}>")
    return problems


def check(root):
    problems = []
    known = {}
    for folder in REACH:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                problems += check_file(root, path, known)
    return problems


PLANTS = [
    ("core/planted.cpp", '#include "designs/design.h"\n', "core/ may not include designs/design.h"),
    ("views/planted.cpp", '#include "standalone/planted.h"\n', "views/ may not include standalone/planted.h"),
    ("host/framework/planted.h", '#include "core/planted2.h"\n', "host/ may not include core/planted2.h"),
    ("templates/planted.cpp", '#include "host/framework/planted.h"\n', "templates/ may not reach core/"),
    ("designs/planted.cpp", "#include <QWidget>\n", "designs/ does without <QWidget>"),
    ("cli/planted.cpp", '#include "designs/design.h"\n', "cli/ may not include designs/design.h"),
]


def self_test(root):
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder)
        for name in REACH:
            if (root / name).is_dir():
                shutil.copytree(root / name, copy / name)
        for name in ("standalone/planted.h", "core/planted2.h"):
            (copy / name).write_text("#pragma once\n", encoding="utf-8")
        for name, text, _ in PLANTS:
            (copy / name).write_text(text, encoding="utf-8")
        found = "\n".join(check(copy))
    return [f"not found when planted: {expected}" for _, _, expected in PLANTS if expected not in found]


def main():
    root = pathlib.Path(__file__).resolve().parents[2]
    problems = self_test(root) if "--self-test" in sys.argv else check(root)
    print("\n".join(problems) if problems else "layers: every include points downwards")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
