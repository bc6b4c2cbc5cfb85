// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomasciiview.h"

#include "views/report/terminalreport.h"

BOMAsciiView::BOMAsciiView(QWidget *parent)
    : BOMView(parent)
{
}

void BOMAsciiView::writeOutput()
{
    if (isValid()) {
        saveOutput(
            {tr("ASCII file to save"), QStringLiteral(".txt"), tr("ASCII fixed column width file (*.txt)")},
            [this] { return textReport(dataReport()); });
    }
}
