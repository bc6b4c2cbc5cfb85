// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/editcolumns.h"
#include "cli/spreadsheettable.h"
#include "core/numberreader.h"
#include "standalone/referencereader.h"
#include "standalone/tablefile.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

class DesignEdits;
class OpenDesign;

/// How a table of edits is read.
struct EditTableOptions
{
    /// What spreadsheets make of texts by themselves is written, not refused.
    bool acceptsSpreadsheetChanges = false;
    HeadingOptions headings;
};

/// Finds the cells of a table that differ from what a report would hold now, and makes edits of them.
class EditTable final
{
public:
    /// Design and edits must outlive the object; `path` is the table's file, for messages.
    EditTable(const QString &path, OpenDesign &design, DesignEdits &edits, const EditTableOptions &options);

    /// Adds an edit for each cell that differs. A row may name several references.
    void compare(const Table &table);
    /// The same for a sheet, whose cells may hold what is no text.
    void compare(const SpreadsheetTable &sheet);
    /// What was left out of the table, one sentence each.
    [[nodiscard]] const QStringList &notices() const { return m_notices; }

    [[nodiscard]] const ReportCells &cells() const { return m_cells; }

private:
    [[nodiscard]] bool isWithinLimit(const Table &table);
    void compareRow(const Table &table, const TableRow &row);
    void compareCell(const QString &reference, const QStringList &references, const TableRow &row,
                     const EditColumn &column);
    /// What a report may hold for the reference now.
    [[nodiscard]] QStringList shownTexts(const QString &reference, const QString &firstReference,
                                         const EditColumn &column) const;
    /// Whether the cell is such a text, or says the same number.
    [[nodiscard]] bool isUnchanged(const QString &cell, const QString &shown, const EditColumn &column) const;
    /// What a spreadsheet has made of one of the texts; empty when it has not.
    [[nodiscard]] QString spreadsheetChangeOf(const QString &cell, const QStringList &shown,
                                              const EditColumn &column, CellKind kind) const;
    /// Whether the cell has a text instead of a number, where the property has no definition that refuses it.
    [[nodiscard]] bool isNumberLost(const QString &cell, const QStringList &shown,
                                    const EditColumn &column) const;
    void refuseSpreadsheetChange(const TableRow &row, const EditColumn &column, const QString &reference,
                                 const QString &text);
    [[nodiscard]] bool hasSameTexts(const TableRow &row, const TableRow &other) const;
    /// The name under which the column's text is stored and the other column that would change it, in words,
    /// where the cells of both would be one text. Empty when there is none.
    [[nodiscard]] QString columnOfSameText(const QString &reference, const TableRow &row,
                                           const EditColumn &column) const;
    /// Another name under which the reference has what the column shows; empty when it has it under the
    /// column's own.
    [[nodiscard]] QString otherName(const QString &reference, const EditColumn &column) const;
    void refuseEmptyCells();
    /// What the report shows of every component of that reference, and what is stored.
    [[nodiscard]] QStringList componentTexts(const QString &reference, const EditColumn &column) const;
    void refuse(int line, const QString &text);
    /// Refuses a cell of a row for what it says of a reference.
    void refuse(const TableRow &row, const EditColumn &column, const QString &reference, const QString &text);
    [[nodiscard]] QString place(int line) const;
    [[nodiscard]] QString place(int line, const EditColumn &column) const;
    [[nodiscard]] CellKind kindOf(const TableRow &row, const EditColumn &column) const
    {
        return m_sheet ? m_sheet->kind(row.line, column.index) : CellKind::Text;
    }
    /// The cell of the column; numbers of a sheet as people write them.
    [[nodiscard]] QString cellOf(const TableRow &row, const EditColumn &column) const;
    /// Why a cell of a sheet cannot be taken for a text; empty when it can.
    [[nodiscard]] QString kindProblem(const TableRow &row, const EditColumn &column) const;
    /// Whether the cell is what KiCad writes of a line whose parts have different texts.
    [[nodiscard]] bool isKicadList(const QString &cell, const QStringList &references,
                                   const EditColumn &column);

    QString m_path;
    /// Null for a file of delimited cells.
    const SpreadsheetTable *m_sheet = nullptr;
    OpenDesign &m_design;
    DesignEdits &m_edits;
    ReportCells m_cells;
    ReferenceReader m_reader;
    NumberReader m_numbers;
    EditTableOptions m_options;
    /// Cells of one column that say nothing where the parts have a text under another name.
    struct EmptyCells
    {
        /// In words, of the first.
        QString example;
        int line = 0;
        qsizetype count = 0;
    };

    qsizetype m_spreadsheetChanges = 0;
    /// By the number of the column.
    QMap<qsizetype, EmptyCells> m_emptyCells;
    std::vector<EditColumn> m_columns;
    bool m_isFromKicad = false;
    /// What KiCad would write in the cells of the current row, by the number of the column.
    QHash<qsizetype, QString> m_kicadLists;
    QStringList m_notices;
    /// The row in which a reference was met first.
    QHash<QString, const TableRow *> m_rows;
};
