#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""translations.py [--update | --self-test]: every text of the sources has a complete German translation.

Without an option nothing is written; --update brings resources/translations/ up to date first. Texts are what lupdate
finds: the report is not among them, because its language does not depend on the machine that makes it.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parents[2]
TEXTS = ROOT / "resources/translations/bom_de.ts"
NOT_TRANSLATED = {"bench", "resources", "tests"}


def lupdate(texts, *options):
    """Enters the texts of the sources into the file; gives what could not be entered."""
    tools = subprocess.run(["qtpaths6", "--query", "QT_INSTALL_BINS"], capture_output=True, text=True, check=True)
    folders = sorted(file.parent.name for file in ROOT.glob("*/CMakeLists.txt"))
    run = subprocess.run([tools.stdout.strip() + "/lupdate", "-I", ".", "-locations", "none", "-extensions", "cpp,h,ui",
                          "-source-language", "en", "-target-language", "de", *options,
                          *(name for name in folders if name not in NOT_TRANSLATED), "-ts", texts],
                         cwd=ROOT, capture_output=True, text=True, check=True)
    return [line for line in (run.stdout + run.stderr).splitlines()
            if re.search(r"cannot be called without context|lacks Q_OBJECT|[Dd]iscarding|[Uu]nmatched", line)]


def places(text):
    return set(re.findall(r"%L?(?:n|\d+)", text))


def mnemonics(text):
    return len(re.findall(r"&(?!&|\s|\w+;)", text.replace("&&", "")))


def ends(text):
    """The blanks around a text and the mark that tells what it is: a title, a question that follows."""
    mark = re.search(r"(…|\.\.\.|:)?(\s*)$", text)
    return re.match(r"\s*", text).group(), mark.group(1), mark.group(2)


def faults(texts):
    found = []
    for context in xml.parse(texts).iter("context"):
        for message in context.iter("message"):
            source = message.find("source").text or ""
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
            state = translation.get("type")
            wrong = []
            if state in ("vanished", "obsolete"):
                wrong.append("no source has this text any more")
            elif state or not all(form.strip() for form in forms):
                wrong.append("has no translation")
            else:
                if any(places(form) != places(source) for form in forms):
                    wrong.append("has other places in the translation")
                if any(ends(form) != ends(source) for form in forms):
                    wrong.append("begins or ends in another way in the translation")
                if any(mnemonics(form) != mnemonics(source) for form in forms):
                    wrong.append("has its key in one language only")
            found += [f"{context.find('name').text}: {source!r} {what}" for what in wrong]
    return found


def check():
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder, TEXTS.name)
        shutil.copy(TEXTS, copy)
        return lupdate(copy) + faults(copy)


def planted_file(folder, source, translation):
    file = pathlib.Path(folder, "planted.ts")
    root = xml.Element("TS", version="2.1", language="de")
    context = xml.SubElement(root, "context")
    xml.SubElement(context, "name").text = "Planted"
    message = xml.SubElement(context, "message")
    xml.SubElement(message, "source").text = source
    xml.SubElement(message, "translation").text = translation
    xml.ElementTree(root).write(file)
    return file


def self_test():
    """Each kind of fault is found in a file that has it."""
    with tempfile.TemporaryDirectory() as folder:
        file = planted_file(folder, "This stands in no source", "Das steht in keiner Quelle")
        lupdate(file)
        if not any("no source has" in fault for fault in faults(file)):
            return ["a text that is in no source any more is not found"]
    planted = [("text", "", "has no translation"), ("%1 of %2", "%1", "other places"), ("%L1", "%1", "other places"),
               ("Open…", "Öffnen", "ends"), ("Name:", "Name", "ends"), ("a ", "a", "ends"), ("a\n", "a", "ends"),
               ("&File", "Datei", "key"), ("Save && close", "Speichern && schließen", ""), ("&lt;b>", "&lt;i>", "")]
    for source, translation, expected in planted:
        with tempfile.TemporaryDirectory() as folder:
            found = faults(planted_file(folder, source, translation))
            if bool(found) != bool(expected) or not all(expected in fault for fault in found):
                return [f"{source!r} as {translation!r}: {found}"]
    return []


def main():
    if sys.argv[1:] == ["--update"]:
        lupdate(TEXTS, "-no-obsolete")
    found = self_test() if sys.argv[1:] == ["--self-test"] else check()
    for fault in found:
        print(fault)
    print(f"translations: {len(found)} faults; texts are in {TEXTS.relative_to(ROOT)}" if found
          else "translations: every text has its translation")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
