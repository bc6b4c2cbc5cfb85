// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sheets/spreadsheetfile.h"

class XmlPart;

/// An OpenDocument spreadsheet (OASIS OpenDocument 1.2 and 1.3).
class OdsFile final : public SpreadsheetFile
{
public:
    OdsFile(ZipArchive archive, const SheetLimits &limits)
        : SpreadsheetFile(std::move(archive), limits)
    {
    }

    /// The part that holds all sheets.
    [[nodiscard]] static QString contentPart() { return QStringLiteral("content.xml"); }

    [[nodiscard]] bool load(QString *problem) override;
    [[nodiscard]] std::optional<Sheet> sheet(qsizetype index, QString *problem) const override;

private:
    struct Cell;
    class Reader;
};
