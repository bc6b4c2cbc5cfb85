#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
"""Prints the first sheet of an .xlsx file: each cell that is not empty with its value (texts in quotes), number format and
formula, then the links, the highest row, what is frozen and filtered, and the date of creation."""

import json
import re
import sys
import zipfile
from xml.etree import ElementTree

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
ID = "{http://schemas.openxmlformats.org/officeDocument/2006/relationships}id"

book = zipfile.ZipFile(sys.argv[1])
parts = {name: ElementTree.fromstring(book.read(name)) for name in book.namelist()}
sheet = parts["xl/worksheets/sheet1.xml"]
styles = parts["xl/styles.xml"]
texts = ["".join(item.itertext()) for item in parts["xl/sharedStrings.xml"]]
codes = {"0": "", "2": "0.00", "49": "@"}
codes |= {code.get("numFmtId"): code.get("formatCode") for code in styles.iter(MAIN + "numFmt")}
formats = [codes[style.get("numFmtId")] for style in styles.find(MAIN + "cellXfs")]
targets = {link.get("Id"): link.get("Target") for link in parts.get("xl/worksheets/_rels/sheet1.xml.rels", [])}

for cell in sheet.iter(MAIN + "c"):
    value = cell.findtext(MAIN + "v")
    if value is None:
        continue
    text = json.dumps(texts[int(value)], ensure_ascii=False) if cell.get("t") == "s" else value
    form = formats[int(cell.get("s", 0))]
    formula = cell.findtext(MAIN + "f")
    print(cell.get("r"), text, *([f"[{form}]"] if form else []), *(["=" + formula] if formula else []))
for link in sheet.iter(MAIN + "hyperlink"):
    print("link", link.get("ref"), targets[link.get(ID)])
print("highest row", max(float(row.get("ht", 15)) for row in sheet.iter(MAIN + "row")))
print("frozen", *(f"{pane.get('ySplit')} {pane.get('state')}" for pane in sheet.iter(MAIN + "pane")))
print("filter", *(area.get("ref") for area in sheet.iter(MAIN + "autoFilter")))
print("created", re.search(rb">([^<]*)</dcterms:created>", book.read("docProps/core.xml"))[1].decode())
