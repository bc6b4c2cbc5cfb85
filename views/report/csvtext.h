// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QStringView>

/// A growing CSV text in UTF-8, lines ended by line feeds. Double quotes and line breaks are dropped from the
/// cells; cells with a comma stand in double quotes.
class CsvText final
{
public:
    /// Adds a row. `leading` is its first cell; the cell of `cells` at `quoted` stands in double quotes
    /// whatever it holds.
    void addRow(QStringView leading, const QStringList &cells, qsizetype quoted = -1);

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    void addCell(QStringView text, bool alwaysQuote);

    QByteArray m_bytes;
};
