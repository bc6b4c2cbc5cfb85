#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""What scripts/setup says on systems that it does not install on, and that it goes on where all of it is there."""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

SETUP = Path(__file__).resolve().parents[2] / "scripts/setup"
# Contents of /etc/os-release; a package manager that has everything, or none; the exit status; how the one line begins.
CASES = [
    ("ID=fedora\nVERSION_ID=42\n", None, 1, "setup: install what is missing with: sudo dnf install gcc-c++ cmake "),
    ('ID="rocky"\nID_LIKE="rhel centos fedora"\n', None, 1, "setup: install what is missing with: sudo dnf install gcc-c++ "),
    ("ID=fedora\n", "rpm", 0, ""),
    ("ID=arch\n", None, 1, "setup: install what is missing with: sudo pacman -S --needed gcc cmake "),
    ("ID=manjaro\nID_LIKE=arch\n", "pacman", 0, ""),
    ('ID="opensuse-leap"\nID_LIKE="suse opensuse"\n', None, 0, "setup: this system is not known; what it needs is, by Debian's"),
    ("ID=ubuntu\nID_LIKE=debian\nVERSION_ID=24.04\n", "dpkg-query", 0, ""),
    ("ID=debian\n", "dpkg-query", 0, ""),
]


def main():
    failures = 0
    for release, manager, status, beginning in CASES:
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "os-release").write_text(release)
            if manager:
                program = Path(folder) / manager
                program.write_text("#!/bin/sh\necho install ok installed\n")
                program.chmod(0o755)
            done = subprocess.run([SETUP], capture_output=True, text=True, timeout=20, check=False,
                                  env=os.environ | {"OS_RELEASE": f"{folder}/os-release", "PATH": f"{folder}:{os.environ['PATH']}"})
        lines = done.stderr.splitlines()
        if done.returncode != status or lines[1:] or not (lines or [""])[0].startswith(beginning) or bool(lines) != bool(beginning):
            print(f"setup: {release!r} with {manager} ends with {done.returncode}: {done.stderr}", file=sys.stderr)
            failures += 1
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
