#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Clicks, types and drags at random in bomviewer, on a screen of its own, and watches that the program neither ends with a
fault, nor hangs, nor takes more and more memory. The program sees nothing of the machine but what it can read: it writes into a
folder that is thrown away, and reaches no network. The same seed does the same as long as the program answers the same; the
actions are written down and can be done again with --replay.

A hang is an action after which the program works for longer than two seconds before it answers. These are seconds of its own
processor time, so that other programs on the machine do not count, and are lengthened as this build on this machine is slower
than a release build on the machine where the limit was set: by the time that it needs to show the design. An answer that does
not come within two minutes by the clock is a hang as well.

Memory is what the program holds once things have been used (after a fifth of the actions) against the end of its life. It may
grow by a quarter and 60 MB: undo steps, pending edits and caches are part of it, and what the address sanitizer keeps of freed memory
is limited to 16 MB. A life of fewer than 600 actions is too short to tell."""

import argparse
import contextlib
import os
import random
import re
import shutil
import signal
import sys
import time
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "tests/mission"))
from hands import Hands  # noqa: E402
from screenreader import Bus, Gone  # noqa: E402
from session import NotInTime, Session, stop, wait_for  # noqa: E402

DESIGNS = ["mixed-signal-board/mixed-signal-board.kicad_pro", "audio-amplifier/audio-amplifier.kicad_pro",
           "contract-manufacturer/partlist.csv"]
# Processor time in which a release build shows the first of them.
RELEASE_SECONDS = 0.17
LONGEST_ANSWER = 2.0
LONGEST_ON_THE_CLOCK = 120
MEASURED_FROM, SHORTEST_LIFE = 0.2, 600
MAY_GROW_BY, MAY_GROW_TO = 60 << 20, 1.25
SANITIZER = ("exitcode=99:detect_leaks=0:quarantine_size_mb=16:malloc_context_size=12:allocator_release_to_os_interval_ms=500")
KEYS = (["Tab"] * 6 + ["Return"] * 4 + ["Escape"] * 5 + ["Up", "Down", "Left", "Right", "Home", "End", "Prior", "Next"] * 2 +
        ["F2", "F3", "F5", "Delete", "BackSpace", "space", "Insert", "Menu", "Shift+Tab", "Shift+Down", "Shift+Right", "Ctrl+Tab",
         "Ctrl+Shift+Tab", "Ctrl+Home", "Ctrl+End", "Shift+F10"] +
        [f"Ctrl+{key}" for key in "aacvxzzyfhpeo"] + ["Ctrl+Shift+z", "Ctrl+Alt+h", "Ctrl+Up", "Ctrl+Down", "Ctrl+plus",
                                                      "Ctrl+minus", "Ctrl+0", "Alt+F4", "Ctrl+q", "Ctrl+w"] +
        [f"Alt+{key}" for key in "fegtvhabcdlnorsuw"])
# No "/" or "~": a file name that is typed stays in the folder of the design.
LETTERS = "abcRCU0123456789.,;:-+%*?()[]{}<>\"'\\&|=_ #@!$^`"


class Found(Exception):
    """A fault of the program."""


class Monkey:
    def __init__(self, session, program, seed, folder):
        self.session = session
        self.random = random.Random(seed)
        self.hands = Hands(session.display)
        self.bus = Bus(session.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.bus.milliseconds = LONGEST_ON_THE_CLOCK * 1000
        self.program = program
        self.folder = folder
        self.designs = [folder / design for design in DESIGNS]
        self.lives = self.actions = 0
        self.slowest = (0, "")
        self.titles = set()
        self.log = open(session.folder / "actions.log", "w", encoding="utf-8")
        self.limit = LONGEST_ANSWER

    # The program

    def command(self, design):
        """Everything can be read; only the folder of the session can be written."""
        home = str(self.session.folder)
        return ["bwrap", "--ro-bind", "/", "/", "--dev", "/dev", "--proc", "/proc", "--tmpfs", "/dev/shm", "--bind", home, home,
                "--unshare-net", "--unshare-ipc", "--unshare-pid", "--die-with-parent", "--chdir", str(self.folder), self.program, str(design)]

    def start(self):
        self.lives += 1
        self.born = self.actions
        self.memory = []
        self.process = self.session.start(*self.command(self.random.choice(self.designs)), log="bomviewer")
        self.number = self.wait("the program", self.child)
        self.application = self.wait("the program on the bus", lambda: self.bus.program(self.number))
        self.wait("the window", lambda: self.windows())

    def wait(self, what, condition):
        def asked():
            if self.process.poll() is not None:
                raise Found(f"the program ended with status {self.process.returncode} before {what} was there")
            try:
                return condition()
            except (Gone, OSError):
                return None
        return wait_for(what, asked, LONGEST_ON_THE_CLOCK)

    def programs(self):
        """The numbers of all processes of the program in its confinement: further windows are processes of their own."""
        parents = {}
        for folder in Path("/proc").glob("[0-9]*"):
            try:
                parents.setdefault(int((folder / "stat").read_text().rpartition(")")[2].split()[1]), []).append(int(folder.name))
            except OSError:
                continue
        found, due = [], [self.process.pid]
        while due:
            number = due.pop()
            due += parents.get(number, [])
            try:
                if os.readlink(f"/proc/{number}/exe") == str(self.program):
                    found.append(number)
            except OSError:
                continue
        return sorted(found)

    def child(self):
        return next(iter(self.programs()), None)

    def end_others(self):
        for number in self.programs():
            if number != self.number:
                with contextlib.suppress(OSError):
                    os.kill(number, signal.SIGTERM)

    def processor_seconds(self):
        fields = Path(f"/proc/{self.number}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def resident(self):
        return int(Path(f"/proc/{self.number}/statm").read_text().split()[1]) * os.sysconf("SC_PAGE_SIZE")

    def windows(self):
        return [window for window in self.application.children if window.has("showing")]

    def measure(self):
        """How much slower than a release build this one is."""
        self.process = self.session.start(*self.command(self.designs[0]), log="bomviewer")
        self.number = self.wait("the program", self.child)
        self.application = self.wait("the program on the bus", lambda: self.bus.program(self.number))
        self.wait("the report", lambda: self.application.find("page tab", "BOM Report"))
        seconds = self.processor_seconds()
        stop(self.process)
        self.limit = LONGEST_ANSWER * max(1, seconds / RELEASE_SECONDS)
        print(f"shows a design in {seconds:.2f} s of processor time; a hang is more than {self.limit:.1f} s of it")

    # What it does

    def window(self):
        windows = self.windows()
        self.titles.update(window.name.rpartition(" \N{EN DASH} ")[2] for window in windows)
        return self.random.choice(windows[-2:] if self.random.random() < 0.9 else windows) if windows else None

    def point(self, window):
        left, top, width, height = window.rectangle
        return (self.random.randint(left, left + max(width - 1, 0)), self.random.randint(top, top + max(height - 1, 0)))

    def usable(self, window):
        """Something that can be pressed or typed into, found by going down from the window; a cell of a table counts."""
        widget = window
        while True:
            if widget.role == "table" and widget.rows and widget.columns:
                cell = widget.cell(self.random.randrange(widget.rows), self.random.randrange(widget.columns))
                return (cell if cell.rectangle.width > 0 else widget).rectangle.middle
            children = widget.children
            self.random.shuffle(children)
            below = next((child for child in children[:6] if child.has("showing")), None)
            if below is None:
                return widget.rectangle.middle
            widget = below

    def asks_for_file(self):
        """A dialog that names files is answered with a name inside of the folder, or not at all."""
        return next((window for window in self.windows() if window.role != "frame" and
                     any(child.name == "Look in:" for child in window.children)), None)

    def choose(self):
        """An action as a list of texts and numbers, which do() understands."""
        if dialog := self.asks_for_file():
            if self.random.random() < 0.5:
                return ["key", "Escape"]
            name = (str(self.random.choice(self.designs)) if "pen" in dialog.name else
                    str(self.folder / f"out-{self.random.randrange(4)}.{self.random.choice(['csv', 'bomt', 'pdf', 'x y', 'html'])}"))
            return ["name", name]
        window = self.window()
        if window is None:
            return ["key", "Escape"]
        dice = self.random.random()
        if dice < 0.35:
            place = self.usable(window)
            button = self.random.choice([1] * 8 + [3])
            return ["click", *(place or self.point(window)), button, self.random.choice([1, 1, 1, 2])]
        if dice < 0.5:
            return ["click", *self.point(window), self.random.choice([1, 1, 1, 1, 2, 3, 3, 4, 5]), self.random.choice([1, 1, 1, 2, 3])]
        if dice < 0.75:
            return ["key", self.random.choice(KEYS)]
        if dice < 0.92:
            return ["type", "".join(self.random.choices(LETTERS, k=self.random.randint(1, 8)))]
        return ["drag", *self.point(window), *self.point(window)]

    def do(self, action):
        kind, *how = action
        if kind == "key":
            self.hands.press(*how)
        elif kind == "type":
            self.hands.type(*how)
        elif kind == "click":
            self.hands.click(tuple(how[:2]), button=how[2], times=how[3])
        elif kind == "drag":
            self.hands.drag(tuple(how[:2]), tuple(how[2:]), steps=6)
        elif kind == "name":
            self.hands.press("Ctrl+a")
            self.hands.type(*how)
            self.hands.press("Return")

    def act(self, action=None):
        """One action; false where the program has ended as it should."""
        try:
            action = action or self.choose()
        except (Gone, NotInTime, IndexError):
            action = ["key", "Escape"]
        self.actions += 1
        print(repr(action), file=self.log, flush=True)
        try:
            before = self.processor_seconds()
            self.do(action)
            self.answer(before, action)
        except (Gone, OSError) as problem:
            return self.has_ended(problem)
        if self.actions % 20 == 0:
            self.memory.append(self.resident())
            self.end_others()
        return self.process.poll() is None or self.has_ended("")

    def answer(self, before, action):
        started = time.monotonic()
        _ = self.application.name
        took = self.processor_seconds() - before
        if took > self.slowest[0]:
            self.slowest = (took, repr(action))
        if took > self.limit or time.monotonic() - started > LONGEST_ON_THE_CLOCK:
            raise Found(f"a hang: after {action!r} the program worked for {took:.1f} s before it answered")

    def has_ended(self, problem):
        """False after an orderly end; a fault otherwise."""
        end = time.monotonic() + LONGEST_ON_THE_CLOCK
        while self.process.poll() is None and time.monotonic() < end:
            time.sleep(0.05)
        if self.process.poll() is None:
            raise Found(f"a hang: no answer within {LONGEST_ON_THE_CLOCK} s ({problem})")
        if self.process.returncode != 0:
            raise Found(f"the program ended with status {self.process.returncode}")
        return False

    def check_memory(self):
        """At the end of a life."""
        if self.actions - self.born < SHORTEST_LIFE:
            return
        start = self.memory[int(len(self.memory) * MEASURED_FROM)]
        end = sorted(self.memory[-5:])[2]
        print(f"memory: {start >> 20} MB when warm, {end >> 20} MB at the end of {self.actions - self.born} actions")
        if end > start * MAY_GROW_TO + MAY_GROW_BY:
            raise Found(f"memory grew from {start >> 20} MB to {end >> 20} MB in {self.actions - self.born} actions")

    def run(self, seconds):
        self.measure()
        end = time.monotonic() + seconds
        self.start()
        while time.monotonic() < end:
            if not self.act():
                self.check_memory()
                self.start()
        self.check_memory()

    def replay(self, lines):
        self.measure()
        self.start()
        for line in lines:
            if not self.act(eval(line, {"__builtins__": {}})):
                self.start()

    def finish(self):
        stop(self.process)
        self.log.close()


def what_was_said(log):
    """The reports of the sanitizers, or else the last lines."""
    text = log.read_text(errors="replace") if log.exists() else ""
    report = re.search(r"(==\d+==ERROR: .*|[^\n]*runtime error: .*)", text, re.DOTALL)
    return (report[0] if report else text)[-12000 if not report else 0:][:12000]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=Path, help="bomviewer")
    parser.add_argument("--seconds", type=float, default=60)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--display", type=int, help="the number of the screen; without it one that is free")
    parser.add_argument("--replay", type=Path, help="does again what a file says that an earlier run has written")
    asked = parser.parse_args()
    session = Session(display=asked.display, environment={
        "ASAN_OPTIONS": SANITIZER, "UBSAN_OPTIONS": "print_stacktrace=1", "G_SLICE": "always-malloc"})
    with session:
        folder = session.folder / "designs"
        for design in DESIGNS:
            source = (SOURCE / "examples" / design).parent
            shutil.copytree(source, folder / source.name, ignore=shutil.ignore_patterns("expected"))
        monkey = Monkey(session, asked.program.resolve(), asked.seed, folder)
        try:
            if asked.replay:
                monkey.replay(asked.replay.read_text(encoding="utf-8").splitlines())
            else:
                monkey.run(asked.seconds)
        except (Found, NotInTime) as found:
            picture = session.folder / "screen.png"
            monkey.hands.picture().save(picture)
            print(f"seed {asked.seed}, action {monkey.actions}: {found}\nall actions: {session.folder}/actions.log\n"
                  f"the screen: {picture}\n{what_was_said(session.folder / 'bomviewer.log')}", file=sys.stderr)
            sys.exit(1)
        finally:
            monkey.finish()
    session.remove()
    print(f"seed {asked.seed}: {monkey.actions} actions in {monkey.lives} lives of the program and "
          f"{len(monkey.titles)} different windows; the slowest answer took {monkey.slowest[0]:.1f} s: {monkey.slowest[1]}")


if __name__ == "__main__":
    main()
