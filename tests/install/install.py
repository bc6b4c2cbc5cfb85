#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Installs a build into an empty root, runs the programs from there with the sources and the build out of sight, looks at what
was installed, builds a host of the module with it, and takes everything away again."""

import argparse
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
# Another place than the one that the build was made for: the tree can be moved.
PREFIX = "/opt/bill of materials"
ID = "xyz.bomviewer.bomviewer"
DESIGN = "share/bom/examples/audio-amplifier/audio-amplifier.kicad_pro"
# Links to folders of /usr on most machines.
ROOT_FOLDERS = ("/bin", "/lib", "/lib64", "/sbin")
LOADED = re.compile(r"calling init: (/.*)")
INSTALLED = [
    "bin/bom", "bin/bomviewer", "lib/bom/libbom.so", "lib/bom/libhost.so", "share/man/man1/bom.1", "share/man/man1/bomviewer.1",
    "share/bash-completion/completions/bom", "share/bash-completion/completions/bomviewer", "share/zsh/site-functions/_bom",
    "share/zsh/site-functions/_bomviewer", "share/fish/vendor_completions.d/bom.fish",
    "share/fish/vendor_completions.d/bomviewer.fish", "share/doc/bom/copyright", "share/doc/bom/README.md",
    f"share/applications/{ID}.desktop", f"share/metainfo/{ID}.metainfo.xml", "share/mime/packages/bom.xml",
    "share/icons/hicolor/scalable/apps/bomviewer.svg", "share/icons/hicolor/48x48/apps/bomviewer.png",
    "share/icons/hicolor/128x128/apps/bomviewer.png", "include/bom/host/framework/applnmodule.h",
    "include/bom/module/ibomviewer.h", "lib/cmake/Bom/BomConfig.cmake",
    "share/bom/guide/index.html", "share/bom/guide/de/index.html", "share/bom/guide/pictures/window.png", DESIGN,
]
ENVIRONMENT = {"PATH": "/usr/bin:/bin", "HOME": "/nonexistent", "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen"}
# With these the linker says which libraries it loads.
TRACED = ENVIRONMENT | {"LD_DEBUG": "libs"}


def check(is_so, text):
    if not is_so:
        sys.exit(f"install: {text}")


def output(*command, **more):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=100, **more)
    check(done.returncode == 0, f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stdout}{done.stderr}")
    return done.stdout


class Bwrap:
    """A file system of the machine's /usr and /etc, with the prefix at its place."""

    name = "bwrap"

    def __init__(self, tree, build, _):
        self.command = ["bwrap", "--die-with-parent", "--ro-bind", "/usr", "/usr", "--ro-bind", "/etc", "/etc", "--proc", "/proc",
                        "--dev", "/dev", "--tmpfs", "/tmp", "--ro-bind", str(tree), PREFIX]
        for folder in filter(os.path.isdir, ROOT_FOLDERS):
            is_link = os.path.islink(folder)
            self.command += ["--symlink", os.readlink(folder), folder] if is_link else ["--ro-bind", folder, folder]
        for folder in (SOURCE, build):
            if str(folder).startswith("/usr/"):
                self.command += ["--tmpfs", str(folder)]
        self.more = {"env": TRACED}
        self.prefix = PREFIX

    @staticmethod
    def can_be_used():
        return bool(shutil.which("bwrap")) and subprocess.run(
            ["bwrap", "--ro-bind", "/", "/", "true"], stderr=subprocess.DEVNULL, check=False).returncode == 0


class Chroot:
    """A root with copies of the libraries that the programs ask for."""

    name = "chroot, as bwrap cannot be used"

    def __init__(self, tree, _, folder):
        root = folder / "chroot"
        (root / "tmp").mkdir(parents=True)
        for link in filter(os.path.islink, ROOT_FOLDERS):
            (root / os.readlink(link)).mkdir(parents=True, exist_ok=True)
            (root / link[1:]).symlink_to(os.readlink(link))
        shutil.copytree(tree, root / PREFIX[1:])
        files = [*(tree / "bin").iterdir(), *(tree / "lib/bom").iterdir()]
        libraries = self.needed(files)
        core = next(path for path in libraries if "libQt6Core" in path)
        plugins = glob.glob(f"{os.path.dirname(core)}/qt6/plugins/platforms/libqoffscreen.so")
        for path in libraries | set(plugins) | self.needed(plugins):
            (root / path[1:]).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(path, root / path[1:])
        self.command = []
        # The linker asks /proc for the folder of a program, and there is none in here.
        self.more = {"preexec_fn": lambda: (os.chroot(root), os.chdir("/")),
                     "env": TRACED | {"LD_ORIGIN_PATH": f"{PREFIX}/bin"}}
        self.prefix = PREFIX

    @staticmethod
    def needed(files):
        found = re.findall(r"(/\S+) \(0x", output("ldd", *map(str, files)))
        return {path for path in found if "/lib/bom/" not in path}

    @staticmethod
    def can_be_used():
        return os.geteuid() == 0


class InPlace:
    """Nothing is hidden; what is loaded is looked at all the same."""

    name = "nothing, as neither bwrap nor chroot can be used"

    def __init__(self, tree, *_):
        self.command, self.more, self.prefix = [], {"env": TRACED}, str(tree)

    @staticmethod
    def can_be_used():
        return True


def check_loaded(text, isolation, build):
    """No library is from the build, and ours are from the prefix."""
    for path in LOADED.findall(text):
        check(not path.startswith((f"{build}/", f"{SOURCE}/")), f"{path} was loaded, which is not installed")
        check("/lib/bom/" not in path or os.path.normpath(path).startswith(isolation.prefix), f"{path} was loaded")


def run(isolation, build, program, *arguments):
    done = subprocess.run([*isolation.command, f"{isolation.prefix}/bin/{program}", *arguments], capture_output=True, text=True,
                          timeout=60, check=False, **isolation.more)
    check(done.returncode == 0, f"{program} ended with {done.returncode}: {done.stderr[-2000:]}")
    check(f"{isolation.prefix}/bin/../lib/bom/libhost.so" in done.stderr, f"{program} has not loaded the library beside it")
    check_loaded(done.stderr, isolation, build)
    return done.stdout


def check_window(isolation, build):
    """The window finds its module."""
    command = [*isolation.command, f"{isolation.prefix}/bin/bomviewer", f"{isolation.prefix}/{DESIGN}"]
    viewer = subprocess.Popen(command, stderr=subprocess.PIPE, text=True, **isolation.more)
    text, end = "", time.monotonic() + 30
    while "lib/bom/libbom.so" not in "".join(LOADED.findall(text)) and time.monotonic() < end:
        line = viewer.stderr.readline()
        check(line, f"bomviewer has ended without loading its module: {text[-2000:]}")
        text += line if "calling init" in line else ""
    viewer.kill()
    viewer.communicate()
    check(time.monotonic() < end, "bomviewer has not loaded its module")
    check_loaded(text, isolation, build)


def check_files(tree, build):
    """All of it is there, and nothing names the place where it was built."""
    for name in INSTALLED:
        check((tree / name).is_file(), f"{name} is not installed")
    for path in filter(Path.is_file, tree.rglob("*")):
        content = path.read_bytes()
        if content.startswith(b"\x7fELF"):
            folders = re.findall(r"\((?:RPATH|RUNPATH)\).*\[(.*)\]", output("readelf", "-dW", path))
            expected = "$ORIGIN" if path.parent.name == "bom" else "$ORIGIN/../lib/bom"
            check(folders == [expected], f"{path}: run paths {folders} instead of {expected}")
        else:
            named = [folder for folder in (build, SOURCE, tree) if os.fsencode(folder) in content]
            check(not named, f"{path} names {named}")


def check_desktop(tree, version):
    entry = tree / f"share/applications/{ID}.desktop"
    output("desktop-file-validate", entry)
    output("appstreamcli", "validate", "--no-net", tree / f"share/metainfo/{ID}.metainfo.xml")
    output("xmllint", "--noout", tree / "share/mime/packages/bom.xml")
    text = entry.read_text(encoding="utf-8")
    check((tree / "bin" / re.search(r"^Exec=(\S+)", text, re.MULTILINE)[1]).exists(), "the desktop entry starts no program")
    check(f'"{ID}"' in (SOURCE / "app/main.cpp").read_text(encoding="utf-8"), "the program says another name than the desktop's")
    metainfo = (tree / f"share/metainfo/{ID}.metainfo.xml").read_text(encoding="utf-8")
    check(f'<release version="{version}"' in metainfo, f"the metainfo has no release {version}")


def check_completion(tree):
    """bash completes the options that the program itself names."""
    script = '. "$1"; COMP_WORDS=(bomviewer --mo); COMP_CWORD=1; _bomviewer "$2"; echo "${COMPREPLY[*]}"'
    said = output("bash", "-c", script, "bash", tree / "share/bash-completion/completions/bomviewer", tree / "bin/bomviewer")
    check(said == "--module\n", f"bash completes --mo to {said!r}")


def check_host(tree, folder):
    """Others can build a host with what is installed."""
    output("cmake", "-G", "Ninja", "-S", SOURCE / "tests/install/host", "-B", folder / "host", f"-DCMAKE_PREFIX_PATH={tree}")
    output("cmake", "--build", folder / "host")
    said = output(folder / "host/samplehost", env=os.environ | ENVIRONMENT | {"HOME": str(folder)})
    check(said == "BOM 0\n", f"the host says {said!r}")


def try_installation(build, folder, ways):
    root = folder / "root"
    tree = root / PREFIX[1:]
    foreign = tree / "share/applications/other.desktop"
    foreign.parent.mkdir(parents=True)
    foreign.touch()
    environment = os.environ | {"DESTDIR": str(root)}
    output("cmake", "--install", build, "--prefix", PREFIX, env=environment)
    isolation = next(way for way in ways if way.can_be_used())(tree, build, folder)
    print(f"The build is hidden by {isolation.name}")
    version = run(isolation, build, "bomviewer", "--version").split()[-1]
    design = f"{isolation.prefix}/{DESIGN}"
    expected = output(build / "bin/bom", "report", SOURCE / "examples" / Path(DESIGN).relative_to("share/bom/examples"),
                      "--csv", "-", env=ENVIRONMENT)
    check(run(isolation, build, "bom", "report", design, "--csv", "-") == expected, "the report is another one")
    check_window(isolation, build)
    check_files(tree, build)
    check_desktop(tree, version)
    check_completion(tree)
    check_host(tree, folder)
    output("cmake", "--build", build, "--target", "uninstall", env=environment)
    left = [path for path in root.rglob("*") if path != foreign and path not in foreign.parents]
    check(not left and foreign.exists(), f"the target uninstall leaves {left[:5]}, the other program's file: {foreign.exists()}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=Path)
    parser.add_argument("--without", action="append", default=[], choices=["bwrap", "chroot"], help="as if it could not be used")
    asked = parser.parse_args()
    build = asked.build.resolve()
    ways = [way for way in (Bwrap, Chroot, InPlace) if way.__name__.lower() not in asked.without]
    notes = [build / "install_manifest.txt", build / "install_folders.txt"]
    kept = {path: path.read_bytes() for path in notes if path.exists()}
    try:
        for path in notes:
            path.unlink(missing_ok=True)
        with tempfile.TemporaryDirectory() as folder:
            try_installation(build, Path(folder), ways)
    finally:
        # What the user has installed from this build can be taken away as before.
        for path in notes:
            path.unlink(missing_ok=True)
        for path, content in kept.items():
            path.write_bytes(content)


if __name__ == "__main__":
    main()
