# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Keys and mouse of a screen, as the server itself reports them to programs: they cannot tell them from a user's."""

import time

from Xlib import X, XK
from Xlib.ext import xtest

MODIFIERS = {"Ctrl": "Control_L", "Alt": "Alt_L", "Shift": "Shift_L"}
LEFT, MIDDLE, RIGHT, WHEEL_UP, WHEEL_DOWN = 1, 2, 3, 4, 5
NAMES = {" ": "space", "\n": "Return", "\t": "Tab", "Enter": "Return", "Esc": "Escape", "PgDown": "Next",
         "PgUp": "Prior", "Del": "Delete", "Ins": "Insert", "Backspace": "BackSpace"}


class Hands:
    def __init__(self, display):
        self._display = display
        self._root = display.screen().root

    def _symbol(self, name):
        if len(name) == 1 and name not in NAMES:
            # The symbols of Latin 1 have the numbers of its characters.
            return ord(name)
        symbol = XK.string_to_keysym(NAMES.get(name, name))
        if symbol == X.NoSymbol:
            raise ValueError(f"no such key: {name}")
        return symbol

    def _code(self, symbol):
        """The number of the key, and whether it needs Shift."""
        for code, index in self._display.keysym_to_keycodes(symbol):
            if index in (0, 1):
                return code, index == 1
        raise ValueError(f"no key has the symbol {symbol:#x}")

    def _send(self, kind, detail, x=0, y=0):
        xtest.fake_input(self._display, kind, detail, x=x, y=y)
        self._display.sync()

    def press(self, keys):
        """Such as "Ctrl+Shift+Home", "Return", "a"."""
        *modifiers, key = keys.split("+") if len(keys) > 1 else [keys]
        code, shifted = self._code(self._symbol(key))
        held = [self._code(self._symbol(MODIFIERS[name]))[0] for name in modifiers]
        if shifted and "Shift" not in modifiers:
            held.append(self._code(self._symbol("Shift_L"))[0])
        for modifier in held:
            self._send(X.KeyPress, modifier)
        self._send(X.KeyPress, code)
        self._send(X.KeyRelease, code)
        for modifier in reversed(held):
            self._send(X.KeyRelease, modifier)

    def type(self, text):
        for character in text:
            self.press(character)

    def move(self, x, y):
        # The protocol has 16 bits; cells that are scrolled far away have places beyond them.
        x, y = (max(-0x8000, min(place, 0x7FFF)) for place in (x, y))
        self._send(X.MotionNotify, 0, x, y)

    def click(self, place, button=LEFT, times=1):
        """A place is a widget's rectangle, of which the middle counts, or a point."""
        self.move(*getattr(place, "middle", place))
        for _ in range(times):
            self._send(X.ButtonPress, button)
            self._send(X.ButtonRelease, button)

    def drag(self, start, end, steps=12, button=LEFT):
        self.move(*start)
        self._send(X.ButtonPress, button)
        for step in range(1, steps + 1):
            self.move(*(round(a + (b - a) * step / steps) for a, b in zip(start, end)))
            time.sleep(0.01)
        self._send(X.ButtonRelease, button)

    def picture(self):
        """Of the whole screen."""
        from PIL import Image
        size = self._root.get_geometry()
        raw = self._root.get_image(0, 0, size.width, size.height, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombytes("RGB", (size.width, size.height), raw.data, "raw", "BGRX")
