#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Works through a design with bomviewer as a user would, on a screen of its own with real keys and mouse: from opening it over
editing, templates and outputs to closing with unsaved changes; then does the same with bom, whose files must be equal."""

import argparse
import contextlib
import csv
import difflib
import re
import shutil
import socket
import subprocess
import sys
import threading
import time
import zipfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from session import Session, wait_for  # noqa: E402
from user import User  # noqa: E402

SOURCE = Path(__file__).resolve().parents[2]
EXAMPLE = SOURCE / "examples/mixed-signal-board"
DESIGN = "mixed-signal-board.kicad_pro"
CODE, NEW_CODE = "100-0103", "100-0199"
CODE_PARTS = {"R2", "R101", "R102", "R307", "R401"}
NOTES = "Screws come with the case."
TEMPLATE = "Mission"
STEPS = []


def step(function):
    STEPS.append(function)
    return function


def same(what, found, wanted):
    if found != wanted:
        raise AssertionError(f"{what}: {found!r} instead of {wanted!r}")


def lines_changed(old, new):
    """What differs between two folders of schematics: for each file the pairs (number, line before, line after). Lines that
    only one of them has are pairs with None."""
    changed = {}
    for file in sorted({path.name for folder in (old, new) for path in folder.glob("*.kicad_*")}):
        before, after = ((folder / file).read_bytes().split(b"\n") for folder in (old, new))
        if len(before) == len(after):
            pairs = [(at, a.decode(), b.decode()) for at, (a, b) in enumerate(zip(before, after)) if a != b]
            changed |= {file: pairs} if pairs else {}
            continue
        for kind, a, b, c, d in difflib.SequenceMatcher(None, before, after, autojunk=False).get_opcodes():
            if kind == "equal":
                continue
            for at in range(max(b - a, d - c)):
                pair = (before[a + at].decode() if a + at < b else None, after[c + at].decode() if c + at < d else None)
                changed.setdefault(file, []).append((c + at, *pair))
    return changed


def symbol_of(folder, file, number):
    """The reference that the symbol around a line of a schematic has in the first place where it is used."""
    lines = (folder / file).read_text().split("\n")
    start = next(at for at in range(number, -1, -1) if lines[at].startswith("\t(symbol"))
    return next(found[1] for line in lines[start:] if (found := re.match(r'\s*\(property "Reference" "([^"]*)"', line)))


class Editor:
    """Stands for one of KiCad's editors: keeps the lines that are sent to its port."""

    def __init__(self, port):
        self.lines = []
        self._socket = socket.create_server(("127.0.0.1", port))
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        with contextlib.suppress(OSError):
            while True:
                connection, _ = self._socket.accept()
                with connection, connection.makefile(encoding="utf-8") as text:
                    self.lines += [line.rstrip("\n") for line in text]

    def close(self):
        self._socket.close()


class Mission:
    def __init__(self, session, programs):
        self.session = session
        self.user = User(session, programs / "bomviewer")
        self.bom = programs / "bom"
        self.folder = session.folder / "design"
        self.before = session.folder / "before"
        self.out = session.folder / "out"
        self.out.mkdir()
        for folder in (self.folder, self.before):
            shutil.copytree(EXAMPLE, folder, ignore=shutil.ignore_patterns("expected"))

    def run(self):
        for at, do in enumerate(STEPS, 1):
            started = time.monotonic()
            name = do.__name__.replace("_", " ")
            try:
                do(self)
            except Exception as error:
                picture = self.user.picture(self.session.folder / f"step-{at}.png")
                print(f"step {at}, {name}: {error.__class__.__name__}: {error}\nthe screen: {picture}", file=sys.stderr)
                raise
            print(f"{at:2} {name} ({time.monotonic() - started:.1f} s)", flush=True)

    def remember(self):
        """What is compared later is compared with the design as it is now."""
        shutil.rmtree(self.before)
        shutil.copytree(self.folder, self.before)

    def template(self):
        """The list of templates; a mark behind the title of its group says that the template was changed."""
        group = self.user.wait("the group of the templates", lambda: next(
            panel for panel in self.user.main().all("panel") if panel.name.startswith("BOM Template")))
        return self.user.find("combo box", None, group)

    def choose_template(self, name, answer=None):
        """The answer is the button that is pressed when the window asks what to do with changes."""
        self.user.choose(self.template(), name)
        if answer:
            title = "Unsaved BOM Template Changes"
            self.user.button(answer, self.user.dialog(title))
            self.user.wait_closed(title)
        self.user.wait(f"the template \"{name}\"", lambda: self.template().name == name)

    def field_names(self):
        return [row[0] for row in self.user.texts(self.user.table("Fields"))]

    def apply(self):
        self.user.button("Apply Changes")
        box = self.user.dialog("ADI scripting results")
        self.user.find("label", "Applied successfully", box)
        self.user.button("OK", box)
        self.user.wait_closed("ADI scripting results")

    def only_row(self, words):
        self.user.fill("text", "Filter:", words)
        self.user.wait("the number of rows", lambda: next(
            label for label in self.user.main().all("label") if re.fullmatch(r"1 of \d+", label.name)))
        table = self.user.table("Parts")
        [row] = self.user.wait(f"one row for \"{words}\"", lambda: self._single(self.user.shown_rows(table)))
        return table, row

    @staticmethod
    def _single(rows):
        return rows if len(rows) == 1 else None

    @staticmethod
    def listen(port):
        """None while another program has the port."""
        try:
            return Editor(port)
        except OSError:
            return None

    @staticmethod
    def has_all(name, text, further=()):
        for wanted in (NEW_CODE, "KEMET", "SCR1", "M3", *further):
            if wanted not in text:
                raise AssertionError(f"{name} lacks \"{wanted}\"")

    def run_bom(self, *arguments):
        return subprocess.run([self.bom, *map(str, arguments)], env=self.session.environment, check=True, text=True,
                              stdout=subprocess.PIPE, timeout=60).stdout

    def output(self, caption, name, trigger):
        """Writes a report with a name of its own; the desktop must be asked to open it."""
        file = self.out / name
        trigger()
        self.user.name_file(caption, file)
        self.user.wait(f"{name} is written and opened",
                       lambda: any(opened.endswith(f"/out/{name}") for opened in self.session.opened()), 30)
        return file


@step
def open_a_design(self):
    self.user.start()
    self.user.press("Ctrl+o")
    self.user.name_file("Open Design", self.folder / DESIGN)
    self.user.wait("the report", lambda: "Four-channel data recorder" in self.user.report())


@step
def close_the_offer_to_import_old_templates(self):
    dialog = self.user.dialog("BOM Legacy Template Importer")
    self.user.button("Close", dialog)
    self.user.wait_closed("BOM Legacy Template Importer")


@step
def choose_a_template_and_make_one_of_it(self):
    self.choose_template("Purchasing")
    self.user.wait("its columns in the report", lambda: "Part Number" in self.user.report())
    self.choose_template("Fitted")
    same("the fields of the template", self.field_names(), ["Value", "PACKAGE", "MANUFACTURER", "MPN", "CODE", "COST"])
    self.user.button("New Template")
    dialog = self.user.dialog("New BOM Template")
    self.user.fill("text", "Template Name", TEMPLATE, dialog)
    self.user.button("OK", dialog)
    self.user.wait_closed("New BOM Template")
    self.user.wait("the new template is chosen", lambda: self.template().name == TEMPLATE)


@step
def add_a_field(self):
    self.user.button("Add new item", self.user.group("Fields"))
    dialog = self.user.dialog("Edit BOM Field")
    self.user.wait("the line for the property has the keyboard",
                   lambda: self.user.find("combo box", "Component property name", dialog).has("focused"))
    self.user.hands.type("VOLTAGE")
    self.user.press("Tab")
    title = self.user.find("text", "Title for column heading", dialog)
    self.user.wait("a proposed title", lambda: title.text == "Voltage")
    self.user.button("OK", dialog)
    self.user.wait_closed("Edit BOM Field")
    same("the last field", self.field_names()[-1], "Voltage")


@step
def switch_templates_and_discard_the_field(self):
    self.choose_template("Assembly", "Discard")
    self.choose_template(TEMPLATE)
    same("whether the field is there", "Voltage" in self.field_names(), False)


@step
def add_the_field_again_and_move_it_up(self):
    add_a_field(self)
    table = self.user.table("Fields")
    last = table.rows - 1
    for place in (last, last - 1):
        self.user.click(table.cell(place, 0))
        self.user.button("Move item up", self.user.group("Fields"))
        self.user.wait("the field is further up", lambda: table.cell(place - 1, 0).name == "Voltage")


@step
def switch_templates_and_save_the_field(self):
    fields = self.field_names()
    self.choose_template("Assembly", "Save")
    same("the fields of the other template", "Voltage" in self.field_names(), False)
    self.choose_template(TEMPLATE)
    same("the fields of the template that was saved", self.field_names(), fields)
    self.user.wait("the column in the report", lambda: re.search(rf"{fields[-4]}\W+Voltage\W+{fields[-2]}", self.user.report()))


@step
def edit_the_parts_of_a_line(self):
    self.user.tab("Property Editor")
    self.user.check("Group Components")
    table, row = self.only_row(f"CODE:{CODE}")
    cell = self.user.go_to(table, row, "CODE")
    self.user.hands.type(NEW_CODE + "\n")
    self.user.wait("the new value", lambda: cell.name == NEW_CODE)
    same("schematics before the changes are applied", lines_changed(self.before, self.folder), {})


@step
def review_the_pending_changes(self):
    self.user.menu("Edit", "Review Pending Changes…")
    dialog = self.user.dialog("Review Pending Changes")
    rows = self.user.texts(self.user.table("Pending changes", dialog))
    same("what is pending", {tuple(row[:4]) for row in rows}, {(part, "CODE", CODE, NEW_CODE) for part in CODE_PARTS})
    self.user.button("Close", dialog)
    self.user.wait_closed("Review Pending Changes")


@step
def apply_the_changes(self):
    self.apply()
    changed = lines_changed(self.before, self.folder)
    pairs = {pair[1:] for pairs in changed.values() for pair in pairs}
    same("the lines that changed", {(old.strip(), new.strip()) for old, new in pairs},
         {(f'(property "CODE" "{CODE}"', f'(property "CODE" "{NEW_CODE}"')})
    same("the symbols that changed", sorted(symbol_of(self.folder, file, pair[0]) for file, pairs in changed.items()
                                            for pair in pairs), sorted(CODE_PARTS))
    self.remember()


@step
def find_and_replace(self):
    self.user.clear("Filter:")
    self.user.press("Ctrl+h")
    dialog = self.user.dialog("Find And Replace")
    self.user.check("Current Column Only", dialog, state=False)
    self.user.type_over(self.user.beside("Find", "combo box", dialog), "Kemet")
    self.user.fill("text", "Replace", "KEMET", dialog)
    self.user.check("Case Sensitive", dialog)
    self.user.button("Replace All", dialog)
    self.user.wait("a pending change", lambda: self.user.find("push button", "Apply Changes").has("sensitive"))
    table, row = self.only_row("References:C206")
    self.user.wait("the replaced text", lambda: table.cell(row, table.headings().index("MANUFACTURER")).name == "KEMET")
    self.user.focus(self.user.find("text", "Replace", dialog))
    self.user.press("Escape")
    self.user.wait_closed("Find And Replace")
    self.apply()
    changed = [pair[1:] for pairs in lines_changed(self.before, self.folder).values() for pair in pairs]
    same("the lines that changed", [(old.strip(), new.strip()) for old, new in changed],
         [('(property "MANUFACTURER" "Kemet"', '(property "MANUFACTURER" "KEMET"')])
    self.remember()


@step
def create_parts_that_are_not_drawn(self):
    self.user.button("New", self.user.group("BOM Parts"))
    dialog = self.user.dialog("BOM Part Creator")
    self.user.type_over(self.user.beside("Parent Part", "combo box", dialog, 1), "U1")
    self.user.fill("spin box", "Quantity", "2", dialog)
    self.user.fill("text", "Reference Prefix", "SCR", dialog)
    self.user.fill("text", "Value", "M3", dialog)
    self.user.button("OK", dialog)
    self.user.wait_closed("BOM Part Creator")
    table, row = self.only_row("References:SCR")
    same("the new line", [table.cell(row, column).name for column in (0, 1, 2)], ["SCR1-SCR2", "Miscellaneous", "M3"])
    changed = lines_changed(self.before, self.folder)
    same("the file that changed", [*changed], ["power.kicad_sch"])
    same("the lines that are gone", {old for _, old, _ in changed["power.kicad_sch"]}, {None})
    same("the line that is new", changed["power.kicad_sch"][0][2].strip(), "(property \"BOMPART1\" \"'2','SCR','M3'\"")
    self.remember()


@step
def edit_the_notes(self):
    self.user.button("Edit", self.user.group("BOM Notes"))
    dialog = self.user.dialog("BOM Notes Editor")
    text = self.user.find("text", "BOM notes", dialog)
    self.user.wait("the notes have the keyboard", lambda: text.has("focused"))
    self.user.hands.type(NOTES)
    self.user.wait("the notes are typed", lambda: text.text == NOTES)
    self.user.button("Save", dialog)
    self.user.wait_closed("BOM Notes Editor")
    file = self.folder / DESIGN.replace(".kicad_pro", ".bomnotes.txt")
    self.user.wait("the file of the notes", lambda: file.exists() and file.read_text().strip() == NOTES)
    self.user.tab("BOM Report")
    self.user.wait("the notes in the report", lambda: NOTES in self.user.report())


@step
def write_a_web_page(self):
    file = self.output("HTML file to save", "board.html", lambda: self.user.press("Ctrl+Alt+h"))
    self.has_all(file.name, file.read_text(), [NOTES])


@step
def write_a_pdf(self):
    file = self.output("PDF file to save", "board.pdf", lambda: self.user.press("Ctrl+p"))
    text = subprocess.run(["pdftotext", "-layout", str(file), "-"], capture_output=True, check=True).stdout.decode()
    self.has_all(file.name, text, [NOTES])


@step
def write_csv(self):
    file = self.output("CSV file to save", "board.csv", lambda: self.user.button("CSV", self.user.find("tool bar", "BOM")))
    rows = list(csv.reader(file.read_text().splitlines()))
    same("the line that was edited", [row[2] for row in rows if NEW_CODE in row], ["R2,R101-R102,R307,R401"])


@step
def write_csv_of_all_parts(self):
    bar = self.user.find("tool bar", "BOM")
    self.user.check("Full CSV", bar)
    file = self.output("CSV file to save", "parts.csv", lambda: self.user.button("CSV", bar))
    self.user.check("Full CSV", bar, state=False)
    rows = list(csv.reader(file.read_text().splitlines()))
    same("the parts that were edited", {row[1] for row in rows if NEW_CODE in row}, CODE_PARTS)


@step
def write_text(self):
    file = self.output("ASCII file to save", "board.txt", lambda: self.user.menu("Generate", "ASCII"))
    self.has_all(file.name, file.read_text())


@step
def write_a_spreadsheet(self):
    file = self.output("Spreadsheet file to save", "board.xlsx", lambda: self.user.menu("Generate", "Open In Excel"))
    self.has_all(file.name, zipfile.ZipFile(file).read("xl/sharedStrings.xml").decode())


@step
def read_the_guide(self):
    self.user.menu("Help", "Bill of Materials")
    self.user.wait("the guide is opened", lambda: any(opened.endswith("guide/index.html") for opened in self.session.opened()))


@step
def click_a_reference(self):
    self.user.tab("Property Editor")
    self.user.check("Group Components", state=False)
    table, row = self.only_row("References:R401")
    self.user.go_to(table, row, "Category")
    self.user.press("Left")
    self.user.wait("the reference is current", lambda: table.cell(row, 0).has("focused"))
    editors = [wait_for(f"port {port}", lambda: self.listen(port), 60) for port in (4242, 4243)]
    try:
        self.user.click(table.cell(row, 0))
        for editor in editors:
            self.user.wait("KiCad is told the part", lambda: editor.lines == ['$PART: "R401"'])
    finally:
        for editor in editors:
            editor.close()


@step
def close_with_save(self):
    table, row = self.only_row("References:C4 CODE:200-0103")
    cell = self.user.go_to(table, row, "CODE")
    self.user.hands.type("200-0199\n")
    self.user.wait("the new value", lambda: cell.name == "200-0199")
    self.user.check("Suppress empty categories", state=False)
    self.user.press("Ctrl+q")
    self.user.button("Save", self.user.dialog("Unsaved BOM Template Changes"))
    self.user.button("OK", self.user.dialog("ADI scripting results"))
    same("the status of the program", self.user.wait_end(), 0)
    changed = [(file, new.strip()) for file, pairs in lines_changed(self.before, self.folder).items() for _, _, new in pairs]
    same("the line that was written at the end", changed, [("power.kicad_sch", '(property "CODE" "200-0199"')])
    if "Suppress empty categories: no" not in self.run_bom("template", "show", TEMPLATE):
        raise AssertionError("the template was not saved")


@step
def do_the_same_with_bom(self):
    shutil.rmtree(self.before)
    shutil.copytree(EXAMPLE, self.before, ignore=shutil.ignore_patterns("expected"))
    design = self.before / DESIGN
    self.run_bom("set", design, ",".join(sorted(CODE_PARTS)), f"CODE={NEW_CODE}")
    self.run_bom("set", design, "C206", "MANUFACTURER=KEMET")
    self.run_bom("set", design, "U1", "BOMPART1='2','SCR','M3'")
    same("the full CSV of the window", self.run_bom("report", "-q", design, "--template", TEMPLATE, "--full-csv", "-"),
         (self.out / "parts.csv").read_text())
    same("the CSV of the window", self.run_bom("report", "-q", design, "--template", TEMPLATE, "--csv", "-"),
         (self.out / "board.csv").read_text())
    table = self.session.folder / "last.csv"
    table.write_text("References,CODE\nC4,200-0199\n")
    self.run_bom("apply", design, table)
    same("schematics of the window", lines_changed(self.before, self.folder), {})


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("programs", type=Path, help="the folder with bomviewer and bom")
    parser.add_argument("--display", type=int, help="the number of the screen; without it one that is free")
    parser.add_argument("--keep", action="store_true", help="keep the folder with designs and outputs")
    asked = parser.parse_args()
    session = Session(display=asked.display, size=(1600, 1000))
    started = time.monotonic()
    with session:
        Mission(session, asked.programs.resolve()).run()
    if asked.keep:
        print(f"kept: {session.folder}")
    else:
        session.remove()
    print(f"{len(STEPS)} steps in {time.monotonic() - started:.0f} s")


if __name__ == "__main__":
    main()
