# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""A desktop of its own for programs under test: a screen without a monitor, a window manager, the accessibility bus, and
a home folder that is thrown away. Nothing of the user's session is seen or changed."""

import contextlib
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent

# What the desktop opens files and links with. Nothing may open a browser; the log shows what was asked for.
OPENER = """#!/bin/sh
printf '%s\\n' "$1" >>"$HOME/opened.log"
"""

FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/liberation</dir>
  <dir>/usr/share/fonts/liberation</dir>
  <dir>/usr/share/fonts/liberation-fonts</dir>
  <cachedir>{cache}</cachedir>
  <alias><family>sans-serif</family><prefer><family>Liberation Sans</family></prefer></alias>
  <alias><family>monospace</family><prefer><family>Liberation Mono</family></prefer></alias>
  <match><edit name="family" mode="append_last"><string>Liberation Sans</string></edit></match>
</fontconfig>
"""

# No key or click of a test may reach a menu of the window manager.
WINDOW_MANAGER = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <theme><animateIconify>no</animateIconify></theme>
  <desktops><number>1</number><popupTime>0</popupTime></desktops>
  <keyboard/>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""


# In seconds, until a test gives up: busy machines and sanitizers are slow.
PATIENCE = 60


class NotInTime(Exception):
    """What was waited for has not come."""


def wait_for(what, condition, seconds=PATIENCE):
    """Waits until the condition gives something that is true, which is returned."""
    end = time.monotonic() + seconds
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise NotInTime(f"{what}: not within {seconds:g} s")
        time.sleep(0.02)


class Session:
    """Use it in a with statement. Programs are started with its environment."""

    def __init__(self, folder=None, size=(1280, 900), display=None, environment=None):
        self.folder = Path(folder or tempfile.mkdtemp(prefix="bom-desktop-"))
        self.size = size
        self.display_number = display
        self.home = self.folder / "home"
        self._further = environment or {}
        self._processes = []
        self._stack = contextlib.ExitStack()

    def __enter__(self):
        # A time limit that ends this process must not leave a screen behind.
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
        try:
            self._prepare_home()
            self._start_screen()
            self._start_bus()
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self._stack.close()
        for process in reversed(self._processes):
            stop(process)

    def remove(self):
        shutil.rmtree(self.folder, ignore_errors=True)

    def _prepare_home(self):
        for name in ("config/bom", "data", "cache", "state", "bin", "run"):
            (self.home / name).mkdir(parents=True, exist_ok=True)
        (self.home / "run").chmod(0o700)
        opener = self.home / "bin" / "xdg-open"
        opener.write_text(OPENER)
        opener.chmod(0o755)
        (self.home / "fonts.conf").write_text(FONTS.format(cache=self.home / "cache/fonts"))
        (self.home / "openbox.xml").write_text(WINDOW_MANAGER)
        kept = {name: os.environ[name] for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LD_LIBRARY_PATH",
                                                    "TMPDIR") if name in os.environ}
        self.environment = {
            **kept, "HOME": str(self.home), "PATH": f"{self.home}/bin:/usr/bin:/bin",
            "XDG_CONFIG_HOME": f"{self.home}/config", "XDG_DATA_HOME": f"{self.home}/data",
            "XDG_CACHE_HOME": f"{self.home}/cache", "XDG_STATE_HOME": f"{self.home}/state",
            "XDG_RUNTIME_DIR": f"{self.home}/run", "XDG_CURRENT_DESKTOP": "X-Generic", "BROWSER": f"{self.home}/bin/xdg-open",
            "LC_ALL": "C.UTF-8", "TZ": "UTC", "FONTCONFIG_FILE": f"{self.home}/fonts.conf",
            "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORMTHEME": "generic",
            "NO_AT_BRIDGE": "0", **self._further}

    def _log(self, name):
        return self._stack.enter_context(open(self.folder / f"{name}.log", "ab"))

    def start(self, *command, log=None, **options):
        """Starts a program; what it says goes to a log in the folder of the session, which has its name or another one."""
        name = log or Path(command[0]).name
        program = shutil.which(str(command[0]), path="/usr/bin:/bin")
        if not program:
            raise FileNotFoundError(f"{command[0]}: there is no such program; scripts/setup installs what tests need")
        options.setdefault("stdout", self._log(name))
        process = subprocess.Popen([program, *map(str, command[1:])], stderr=self._log(name), stdin=subprocess.DEVNULL,
                                   env=self.environment, cwd=self.home, start_new_session=True, **options)
        self._processes.append(process)
        return process

    def _start_screen(self):
        """The server chooses a number that is free, unless one is given, and writes it down when it is ready."""
        number, answer = os.pipe()
        given = [] if self.display_number is None else [f":{self.display_number}"]
        width, height = self.size
        self.start("Xvfb", *given, "-displayfd", answer, "-screen", "0", f"{width}x{height}x24", "-dpi", "96",
                   "-nolisten", "tcp", "-noreset", pass_fds=[answer])
        os.close(answer)
        with os.fdopen(number) as text:
            line = text.readline().strip()
        if not line:
            raise RuntimeError("Xvfb has not started: " + (self.folder / "Xvfb.log").read_text())
        self.environment["DISPLAY"] = f":{line}"

    def _start_bus(self):
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1",
                         f"--address=unix:path={self.home}/run/bus", stdout=subprocess.PIPE)
        address = bus.stdout.readline().decode().strip()
        if not address:
            raise RuntimeError("dbus-daemon has not started: " + (self.folder / "dbus-daemon.log").read_text())
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address

    def _start_window_manager(self):
        from Xlib.display import Display
        self.start("openbox", "--config-file", self.home / "openbox.xml", "--sm-disable")
        self.display = Display(self.environment["DISPLAY"])
        self._stack.callback(self.display.close)
        self._wait_for_window_manager()

    def _wait_for_window_manager(self):
        """Asks it for something until it answers. It says earlier that it is there (_NET_SUPPORTING_WM_CHECK), but windows that
        open before it handles events never get the keyboard."""
        from Xlib import X
        from Xlib.protocol.event import ClientMessage
        root = self.display.screen().root
        window = root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        asked, answer = (self.display.intern_atom(name) for name in ("_NET_REQUEST_FRAME_EXTENTS", "_NET_FRAME_EXTENTS"))
        question = ClientMessage(window=window, client_type=asked, data=(32, [0] * 5))

        def answers():
            root.send_event(question, event_mask=X.SubstructureNotifyMask | X.SubstructureRedirectMask)
            return window.get_full_property(answer, 0)
        wait_for("the window manager", answers)
        window.destroy()

    def opened(self):
        """What programs asked the desktop to open."""
        log = self.home / "opened.log"
        return log.read_text().split("\n")[:-1] if log.exists() else []


def stop(process, seconds=5):
    if process.poll() is not None:
        return
    process.send_signal(signal.SIGTERM)
    try:
        process.wait(seconds)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()
