// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QPointer>

class BOMExcelView;
class BOMHTMLView;
class BOMPartsDatabase;
class QWidget;

enum class OutputForm
{
    Html,
    Pdf,
    Print,
    Csv,
    FullCsv,
    Ascii,
    Spreadsheet
};

/// Writes the report outside the window, in the form that the user chooses.
class ReportOutputs final
{
    Q_DECLARE_TR_FUNCTIONS(BOMMainWindow)

public:
    /// `report` shows what is written; dialogs stand above `window`. Neither is owned.
    ReportOutputs(BOMHTMLView *report, QWidget *window);

    /// Does nothing while another output is being written. Asks first when references occur more than once.
    /// Asks for the file, and tells the user what failed.
    void write(OutputForm form, BOMPartsDatabase *database);
    /// The database is about to go.
    void forgetDatabase();

private:
    [[nodiscard]] bool acceptDuplicates(const BOMPartsDatabase &database) const;
    void writeForm(OutputForm form, BOMPartsDatabase *database);
    void writeSpreadsheet(BOMPartsDatabase *database);

    BOMHTMLView *m_report;
    QWidget *m_window;
    /// Stays while the window does: it may still be talking to a spreadsheet program.
    QPointer<BOMExcelView> m_excelView;
    bool m_isWriting = false;
};
