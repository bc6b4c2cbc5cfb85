# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Somebody who works with bomviewer: starts it, finds what to press by what it says, and waits until it has happened."""

import time

from hands import Hands
from screenreader import Bus, Gone
from session import PATIENCE, NotInTime, wait_for


class User:
    def __init__(self, session, program):
        self.session = session
        self.program = program
        self.hands = Hands(session.display)
        self._bus = Bus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.process = None
        self.application = None

    def start(self, *arguments):
        self.process = self.session.start(self.program, *arguments)
        self.application = self.wait("the program on the bus", lambda: self._bus.program(self.process.pid))
        self.dialog("Bill of Materials Viewer")

    def wait(self, what, condition, seconds=PATIENCE):
        """Such as wait_for(), but a program that has ended is told at once, and a widget that goes away is waited for."""
        def asked():
            if self.process.poll() is not None:
                raise RuntimeError(f"bomviewer has ended with status {self.process.returncode} before: {what}")
            try:
                return condition()
            except (Gone, StopIteration, IndexError):
                return None
        return wait_for(what, asked, seconds)

    def wait_end(self, seconds=PATIENCE):
        wait_for("the end of the program", lambda: self.process.poll() is not None, seconds)
        return self.process.returncode

    # What is there

    def windows(self):
        return [window for window in self.application.children if window.has("showing")]

    def window(self, title):
        """The window whose title ends so; None where there is none."""
        return next((window for window in self.windows() if window.name.endswith(title)), None)

    def dialog(self, title, seconds=PATIENCE):
        """A window that opens. It shows before the window manager has given it its place and the keyboard."""
        return self.wait(f"the dialog \"{title}\"",
                         lambda: (window := self.window(title)) and window.has("active") and window, seconds)

    def wait_closed(self, title):
        self.wait(f"the dialog \"{title}\" is closed", lambda: not self.window(title))

    def main(self):
        return self.wait("the main window", lambda: self.window("Bill of Materials Viewer"))

    def resize(self, size):
        """Gives the window a size, as its user would at its frame."""
        from Xlib import X
        title = self.main().name
        root = self.session.display.screen().root
        name = self.session.display.intern_atom("_NET_WM_NAME")
        listed = root.get_full_property(self.session.display.intern_atom("_NET_CLIENT_LIST"), X.AnyPropertyType).value
        window = next(found for number in listed if (found := self.session.display.create_resource_object("window", number))
                      .get_full_property(name, X.AnyPropertyType).value.decode() == title)
        window.configure(width=size[0], height=size[1])
        self.session.display.sync()
        self.wait("the size of the window", lambda: self.main().rectangle[2:] == size)

    def find(self, role, name, inside=None):
        """A widget that can be seen; a wait in vain is an error."""
        return self.wait(f"{role} \"{name}\"", lambda: (inside or self.main()).find(role, name))

    def group(self, title):
        return self.find("panel", title)

    def table(self, name, inside=None):
        return self.find("table", name, inside)

    def texts(self, table):
        """The texts of a table, row by row."""
        return [[table.cell(row, column).name for column in range(table.columns)] for row in range(table.rows)]

    def row_of(self, table, text, column=0):
        return next((row for row in range(table.rows) if table.cell(row, column).name == text), None)

    def shown_rows(self, table):
        """The numbers of the rows that a filter lets through and the window has room for."""
        last = table.columns - 1
        return [row for row in range(table.rows)
                if any(table.cell(row, column).has("showing") for column in (0, last // 2, last))]

    def beside(self, label, role, inside, place=0):
        """The widget on the line of a label: combo boxes are named as what is chosen in them."""
        def found():
            x, y = next(inside.all("label", label)).rectangle.middle
            line = [widget for widget in inside.all(role) if widget.rectangle.x > x and abs(widget.rectangle.middle[1] - y) < 8]
            return sorted(line, key=lambda widget: widget.rectangle.x)[place]
        return self.wait(f"{role} beside \"{label}\"", found)

    def report(self):
        return self.find("text", "Report").text

    # What to do

    def press(self, keys):
        """Keys that are pressed while no window has the keyboard are lost."""
        self.wait("a window with the keyboard", lambda: any(window.has("active") for window in self.windows()))
        self.hands.press(keys)

    def click(self, widget, **how):
        def resting():
            """Where it is, once the window manager has put a new window into its place."""
            before = widget.rectangle
            time.sleep(0.08)
            return before if before.width and widget.rectangle == before else None
        self.hands.click(self.wait("a widget of a size that rests", resting), **how)

    def button(self, name, inside=None):
        button = self.find("push button", name, inside)
        self.wait(f"the button \"{name}\" can be pressed", lambda: button.has("sensitive"))
        self.click(button)

    def check(self, name, inside=None, role="check box", state=True):
        box = self.find(role, name, inside)
        if box.has("checked") != state:
            self.click(box)
        self.wait(f"\"{name}\" is {'on' if state else 'off'}", lambda: box.has("checked") == state)

    def tab(self, name):
        tab = self.find("page tab", name)
        self.click(tab)
        return tab

    def menu(self, *names):
        """Opens a menu of the menu bar and chooses an entry; names lead there."""
        within = self.find("menu bar", "")
        for name in names:
            item = self.wait(f"the menu entry \"{name}\"",
                             lambda: next((found for found in within.all("menu item", name) if found.has("showing")), None))
            self.wait(f"the menu entry \"{name}\" can be chosen", lambda: item.has("sensitive"))
            self.click(item)
            within = item

    def focus(self, field):
        """Clicks into it; where a list of proposals is open the first click only closes that."""
        for _ in range(2):
            self.click(field)
            try:
                return self.wait("the keyboard", lambda: field.has("focused"), 1)
            except NotInTime:
                pass
        return self.wait("the field has the keyboard", lambda: field.has("focused"))

    def fill(self, role, name, text, inside=None):
        """Types over what a field has."""
        self.type_over(self.find(role, name, inside), text)

    def type_over(self, field, text):
        self.focus(field)
        self.hands.press("Ctrl+a")
        self.hands.press("Delete")
        self.hands.type(text)
        content = (lambda: field.name) if field.role == "combo box" else (lambda: field.text)
        self.wait(f"the field has the text \"{text}\"", lambda: content() == text)

    def clear(self, name):
        """Empties a field by the keyboard."""
        self.fill("text", name, "")

    def choose(self, combo, text):
        """An entry of the list that a combo box opens."""
        self.click(combo)
        entry = self.wait(f"the entry \"{text}\"", lambda: next(combo.all("list item", text, deep=True), None))
        self.click(entry)

    def go_to(self, table, row, heading):
        """Makes a cell the current one: a click into its row, then the arrow keys, as the column may be out of sight."""
        column = table.headings().index(heading)
        # A click on a reference leads to KiCad.
        left, _, width, _ = table.rectangle
        at = next(at for at in (column, *range(1, table.columns))
                  if left < table.cell(row, at).rectangle.middle[0] < left + width - 30)
        self.click(table.cell(row, at))
        self.wait("a cell of the row is current", lambda: table.cell(row, at).has("focused"))
        while at != column:
            self.hands.press("Right" if at < column else "Left")
            at += 1 if at < column else -1
            self.wait("the next cell is current", lambda: table.cell(row, at).has("focused"))
        return table.cell(row, column)

    def name_file(self, title, path):
        """Answers a file dialog. It reads folders while a name is typed, and may then change the text or take the Return key for
        its list of proposals, below which its window may not count as active; so the name is typed again until it is taken."""
        dialog = self.dialog(title)
        field = self.wait("the line for the file's name", lambda: next(dialog.all("text")))
        self.wait("the line for the file's name has the keyboard", lambda: field.has("focused"))

        def is_taken():
            self.hands.press("Ctrl+a")
            self.hands.type(str(path))
            try:
                self.wait("the file's name is typed", lambda: field.text == str(path), 5)
                self.hands.press("Return")
                self.wait(f"the dialog \"{title}\" is closed", lambda: not self.window(title), 20)
            except NotInTime:
                return False
            return True
        self.wait(f"the dialog \"{title}\" has taken {path}", is_taken, 2 * PATIENCE)

    def picture(self, path):
        self.hands.picture().save(path)
        return path
