// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomcsvview.h"

#include "views/report/csvreport.h"

BOMCsvView::BOMCsvView(QWidget *parent, bool full)
    : BOMView(parent)
    , m_full(full)
{
}

void BOMCsvView::writeOutput()
{
    if (isValid()) {
        saveOutput({tr("CSV file to save"), QStringLiteral(".csv"), tr("Comma Separated Variables (*.csv)")},
                   [this] { return csvReport(dataReport(), m_full ? CsvRows::Parts : CsvRows::Lines); });
    }
}
