# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""What a screen reader knows about the windows of a program: their widgets by role and name, with texts, states and
rectangles. Asked over the accessibility bus each time, as what a cache holds may be gone."""

from dataclasses import dataclass
from typing import NamedTuple

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

ROOT = "/org/a11y/atspi/accessible/root"
REGISTRY = "org.a11y.atspi.Registry"
# Numbers of states as the protocol has them.
STATES = {"active": 1, "checked": 4, "editable": 7, "enabled": 8, "expanded": 10, "focused": 12, "modal": 16,
          "selected": 23, "sensitive": 24, "showing": 25, "visible": 30}
# Their cells are asked for one by one.
TABLES = {"table", "tree table", "tree", "list"}


class Gone(Exception):
    """The widget is not there any more, or the program does not answer."""


class Rectangle(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    @property
    def middle(self):
        return self.x + self.width // 2, self.y + self.height // 2


class Bus:
    def __init__(self, session_address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        session = Gio.DBusConnection.new_for_address_sync(session_address, flags, None, None)
        answer = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                                   GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, 20000, None)
        self._bus = Gio.DBusConnection.new_for_address_sync(answer.unpack()[0], flags, None, None)
        self.milliseconds = 10000

    def call(self, name, path, interface, method, arguments=None):
        try:
            return self._bus.call_sync(name, path, "org.a11y.atspi." + interface, method, arguments, None,
                                       Gio.DBusCallFlags.NONE, self.milliseconds, None).unpack()
        except GLib.Error as error:
            raise Gone(f"{interface}.{method}: {error.message}") from error

    def property(self, name, path, interface, what):
        arguments = GLib.Variant("(ss)", ("org.a11y.atspi." + interface, what))
        try:
            return self._bus.call_sync(name, path, "org.freedesktop.DBus.Properties", "Get", arguments, None,
                                       Gio.DBusCallFlags.NONE, self.milliseconds, None).unpack()[0]
        except GLib.Error as error:
            raise Gone(f"{interface}.{what}: {error.message}") from error

    def program(self, process):
        """The program with this number of a process, once it is on the bus; None before."""
        for name, path in self.call(REGISTRY, ROOT, "Accessible", "GetChildren")[0]:
            try:
                answer = self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                             "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)), None,
                                             Gio.DBusCallFlags.NONE, self.milliseconds, None)
            except GLib.Error:
                continue
            if answer.unpack()[0] == process:
                return Widget(self, name, path)
        return None


@dataclass(frozen=True)
class Widget:
    bus: Bus
    program: str
    path: str

    def _call(self, interface, method, arguments=None):
        return self.bus.call(self.program, self.path, interface, method, arguments)

    def _property(self, interface, what):
        return self.bus.property(self.program, self.path, interface, what)

    @property
    def name(self):
        return self._property("Accessible", "Name")

    @property
    def role(self):
        return self._call("Accessible", "GetRoleName")[0]

    @property
    def children(self):
        return [Widget(self.bus, name, path) for name, path in self._call("Accessible", "GetChildren")[0]]

    @property
    def states(self):
        low, high = self._call("Accessible", "GetState")[0]
        bits = low | high << 32
        return {name for name, number in STATES.items() if bits >> number & 1}

    def has(self, state):
        return state in self.states

    @property
    def rectangle(self):
        """On the screen."""
        return Rectangle(*self._call("Component", "GetExtents", GLib.Variant("(u)", (0,)))[0])

    @property
    def text(self):
        return self._call("Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def rows(self):
        return self._property("Table", "NRows")

    @property
    def columns(self):
        return self._property("Table", "NColumns")

    def cell(self, row, column):
        return Widget(self.bus, *self._call("Table", "GetAccessibleAt", GLib.Variant("(ii)", (row, column)))[0])

    def headings(self):
        return [self._call("Table", "GetColumnDescription", GLib.Variant("(i)", (column,)))[0]
                for column in range(self.columns)]

    def all(self, role=None, name=None, deep=False):
        """The widgets below this one that can be seen. Cells of tables are left out unless deep."""
        try:
            children = self.children
        except Gone:
            return
        for child in children:
            try:
                its_role = child.role
                if not child.has("showing"):
                    continue
                if (role is None or its_role == role) and (name is None or child.name == name):
                    yield child
            except Gone:
                continue
            if deep or its_role not in TABLES:
                yield from child.all(role, name, deep)

    def find(self, role=None, name=None):
        return next(self.all(role, name), None)

    def tree(self, depth=0, most=12):
        """For messages and for looking around."""
        lines = []
        for child in self.children:
            try:
                lines.append(f"{'  ' * depth}{child.role} \"{child.name}\" {child.rectangle} {sorted(child.states)}")
                if depth < most and child.role not in TABLES:
                    lines += child.tree(depth + 1, most)
            except Gone as gone:
                lines.append(f"{'  ' * depth}({gone})")
        return lines
