// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/reportoutputs.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "host/widgets/waitcursor.h"
#include "views/bomasciiview.h"
#include "views/bomcsvview.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

ReportOutputs::ReportOutputs(BOMHTMLView *report, QWidget *window)
    : m_report(report)
    , m_window(window)
{
}

void ReportOutputs::write(OutputForm form, BOMPartsDatabase *database)
{
    // A double click on a menu entry triggers it twice, the second time while the first one has its dialog.
    if (m_isWriting) {
        return;
    }
    m_isWriting = true;
    const QPointer<QWidget> window(m_window);
    if (acceptDuplicates(*database)) {
        writeForm(form, database);
    }
    // A window that went while its dialog was open has taken this with it.
    if (window) {
        m_isWriting = false;
    }
}

void ReportOutputs::writeForm(OutputForm form, BOMPartsDatabase *database)
{
    if (form == OutputForm::Pdf) {
        m_report->generatePDF();
        return;
    }
    if (form == OutputForm::Print) {
        m_report->print();
        return;
    }
    const WaitCursor cursor;
    if (form == OutputForm::Html) {
        m_report->saveHTML();
    } else if (form == OutputForm::Spreadsheet) {
        writeSpreadsheet(database);
    } else if (form == OutputForm::Ascii) {
        BOMAsciiView view(m_window);
        view.setPartsDatabase(database);
        view.writeOutput();
    } else {
        BOMCsvView view(m_window, form == OutputForm::FullCsv);
        view.setPartsDatabase(database);
        view.writeOutput();
    }
}

void ReportOutputs::writeSpreadsheet(BOMPartsDatabase *database)
{
    if (!m_excelView) {
        m_excelView = new BOMExcelView(m_window);
    }
    m_excelView->setPartsDatabase(database);
    m_excelView->writeOutput();
}

void ReportOutputs::forgetDatabase()
{
    if (m_excelView) {
        m_excelView->setPartsDatabase(nullptr);
    }
}

bool ReportOutputs::acceptDuplicates(const BOMPartsDatabase &database) const
{
    QStringList references = database.duplicateReferences();
    if (references.isEmpty()) {
        return true;
    }
    references.removeDuplicates();
    return HostUi::current().warningQuestion(
        m_window, tr("Duplicate References Detected"),
        tr("The following references have duplicates:\n%1\nGenerate output anyway?")
            .arg(references.join(QStringLiteral(", "))),
        false);
}
