// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sheets/sheet.h"
#include "sheets/ziparchive.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

/// A spreadsheet file (.xlsx or .ods): the names of its sheets, and their cells as they are stored, sheet by
/// sheet. Formulas are not calculated: what the program that wrote the file made of them counts.
class SpreadsheetFile
{
public:
    SpreadsheetFile(const SpreadsheetFile &) = delete;
    SpreadsheetFile &operator=(const SpreadsheetFile &) = delete;
    virtual ~SpreadsheetFile() = default;

    /// Reads all but the sheets, before anything is asked of the file. False with the reason in `problem`.
    [[nodiscard]] virtual bool load(QString *problem) = 0;
    /// In the order of the sheets.
    [[nodiscard]] const QStringList &sheetNames() const { return m_names; }
    /// Nothing, with the reason in `problem`, when the sheet cannot be read or is too large.
    [[nodiscard]] virtual std::optional<Sheet> sheet(qsizetype index, QString *problem) const = 0;

protected:
    SpreadsheetFile(ZipArchive archive, const SheetLimits &limits)
        : m_archive(std::move(archive))
        , m_limits(limits)
    {
    }
    ZipArchive m_archive;
    SheetLimits m_limits;
    QStringList m_names;
};
