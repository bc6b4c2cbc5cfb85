// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomexcelview.h"

#include "host/framework/hostui.h"
#include "views/report/spreadsheetreport.h"

BOMExcelView::BOMExcelView(QWidget *parent)
    : BOMView(parent)
{
}

void BOMExcelView::writeOutput()
{
    if (!isValid()) {
        return;
    }
    const SpreadsheetReport output = spreadsheetReport(dataReport());
    HostUi &ui = HostUi::current();
    if (!output.problem.isEmpty()) {
        ui.warning(this, tr("Output Failed"), output.problem);
        return;
    }
    const QString path =
        saveOutput({tr("Spreadsheet file to save"), QStringLiteral(".xlsx"), tr("Spreadsheets (*.xlsx)")},
                   [&output] { return output.file; });
    if (!path.isEmpty() && !output.notices.isEmpty()) {
        ui.information(this, tr("Spreadsheet"), output.notices.join(u'\n'));
    }
}
