// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

class Spreadsheet;

/// The bill of materials as a spreadsheet, an .xlsx file: a row per line below the heading of its category,
/// numbers as numbers, totals as formulas.
class BOMExcelView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMExcelView(QWidget *parent = nullptr);
    ~BOMExcelView() override;

    /// Asks for a file, writes it and hands it to the desktop. The user is told when it cannot be made or
    /// written; the old file then stays.
    void writeOutput();

    /// The whole file; empty without a database, and when problem() says why.
    [[nodiscard]] QByteArray xlsx();
    /// Why the last xlsx() was empty.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// What the last xlsx() lacks of the report, one sentence each.
    [[nodiscard]] const QStringList &notices() const { return m_notices; }

public Q_SLOTS:
    /// Does nothing: the file is made when it is asked for.
    void handleBOMDataUpdate() override;

private:
    struct Column
    {
        const ReportColumn *report = nullptr;
        /// Of the numbers; empty where no format does and all cells are texts.
        QString format;
    };
    /// Where the lines of one category stand, or those of all.
    struct Block
    {
        int firstRow = 0;
        int lastRow = -1;
        /// Whether the rows hold all that the totals count.
        bool isComplete = true;
    };

    [[nodiscard]] QString documentTitle() const;
    void takeColumns();
    [[nodiscard]] int lastColumn() const;
    void writeTitleBlock(Spreadsheet &sheet) const;
    void writeHeadings(Spreadsheet &sheet) const;
    [[nodiscard]] Block writeCategory(Spreadsheet &sheet, const QString &category) const;
    void writeLine(Spreadsheet &sheet, const QString &category, BomLine line) const;
    void writeValue(Spreadsheet &sheet, int column, const Part &part) const;
    void writeReferences(Spreadsheet &sheet, const QString &references) const;
    void writeTotals(Spreadsheet &sheet, const QString &label, const std::vector<double> &sums,
                     const Block &block, bool isGrand) const;
    void writeNotes(Spreadsheet &sheet) const;

    std::vector<Column> m_columns;
    QString m_designFolder;
    QString m_problem;
    QStringList m_notices;
};
