// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sheets/spreadsheetfile.h"

#include <QHash>

#include <vector>

class XmlPart;

/// An Office Open XML workbook (ECMA-376, transitional or strict).
class XlsxFile final : public SpreadsheetFile
{
public:
    XlsxFile(ZipArchive archive, const SheetLimits &limits)
        : SpreadsheetFile(std::move(archive), limits)
    {
    }

    [[nodiscard]] bool load(QString *problem) override;
    [[nodiscard]] std::optional<Sheet> sheet(qsizetype index, QString *problem) const override;

private:
    struct Relation
    {
        /// The last word of its address.
        QString type;
        /// The name of the part.
        QString target;
    };
    using Relations = QHash<QString, Relation>;
    struct Cell;

    /// What the part of that name refers to; none where nothing says so.
    [[nodiscard]] std::optional<Relations> relationsOf(const QString &part, QString *problem) const;
    [[nodiscard]] bool readWorkbook(const QString &part, const Relations &relations, QString *problem);
    [[nodiscard]] bool readTexts(const QString &part, QString *problem);
    [[nodiscard]] bool readStyles(const QString &part, QString *problem);
    [[nodiscard]] bool readRows(XmlPart &xml, SheetBuilder &sheet, QString *problem) const;
    [[nodiscard]] bool readCells(XmlPart &xml, int row, SheetBuilder &sheet, QString *problem) const;
    /// What the element of a cell says; it is left.
    [[nodiscard]] Cell readCell(XmlPart &xml) const;
    /// What a value means in a cell of that type; `numbers` says what they are in its style.
    [[nodiscard]] Cell cellOf(const QString &type, const QString &value, CellKind numbers) const;
    [[nodiscard]] CellKind kindOfStyle(const QString &index) const;

    /// The part of each sheet; empty for one without cells, such as a chart.
    QStringList m_parts;
    /// Texts that cells share, by number.
    QStringList m_texts;
    /// What numbers are in each style of cells.
    std::vector<CellKind> m_styles;
    /// Days count from 1904.
    bool m_isMacDate = false;
};
