// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomcsvview.h"

#include "core/bompartsdatabase.h"
#include "views/report/csvtext.h"
#include "views/savereport.h"

BOMCsvView::BOMCsvView(QWidget *parent, bool full)
    : BOMView(parent)
    , m_full(full)
{
}

void BOMCsvView::writeOutput()
{
    if (!isValid()) {
        return;
    }
    updateFields();
    saveReport(this,
               {tr("CSV file to save"), database()->defaultOutputPath(QStringLiteral(".csv")),
                tr("Comma Separated Variables (*.csv)")},
               [this] { return csv(); });
}

QByteArray BOMCsvView::csv()
{
    if (!isValid()) {
        return {};
    }
    updateFields();
    removeValueField();
    CsvText text;
    const QStringList headings = columnHeadings(!m_full);
    text.addRow(headings.first(), headings.mid(1));
    const bool quotesReferences = database()->currentTemplate().alwaysQuoteRefs();
    const qsizetype references = m_full ? 0 : 1;
    for (const QString &category : database()->categoryNames()) {
        visitRows(category, !m_full, UnlimitedWidth, 1, [&](const QStringList &row) {
            text.addRow(category, row, quotesReferences ? references : -1);
        });
    }
    return text.bytes();
}

void BOMCsvView::handleBOMDataUpdate() {}
