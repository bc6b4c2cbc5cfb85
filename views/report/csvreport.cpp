// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/csvreport.h"

#include "core/part.h"
#include "templates/bomtemplate.h"
#include "views/report/report.h"

#include <QStringEncoder>

#include <algorithm>

namespace {

bool isDropped(QChar character)
{
    return character == u'"' || character == u'\n' || character == u'\r';
}

void appendUtf8(QByteArray &bytes, QStringView text)
{
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const qsizetype used = bytes.size();
    bytes.resize(used + encoder.requiredSpace(text.size()));
    const char *end = encoder.appendToBuffer(bytes.data() + used, text);
    bytes.resize(end - bytes.constData());
}

/// A growing CSV text: cells, each ended by a comma, and the ends of rows.
class CsvText final
{
public:
    void addCell(QStringView text, bool alwaysQuote = false)
    {
        const bool isEnclosed = alwaysQuote || text.contains(u',');
        if (isEnclosed) {
            m_bytes.append('"');
        }
        while (!text.isEmpty()) {
            const qsizetype kept = std::find_if(text.begin(), text.end(), isDropped) - text.begin();
            appendUtf8(m_bytes, text.first(kept));
            text = text.mid(kept + 1);
        }
        m_bytes.append(isEnclosed ? "\"," : ",");
    }
    /// After at least one cell.
    void endRow() { m_bytes.back() = '\n'; }

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace

QByteArray csvReport(const Report &report, CsvRows rows)
{
    const bool isGrouped = rows == CsvRows::Lines;
    const bool quotesReferences = report.settings().alwaysQuoteRefs();
    CsvText csv;
    for (const QString &heading : report.headings(isGrouped)) {
        csv.addCell(heading);
    }
    csv.endRow();
    for (const QString &category : report.categories()) {
        const ReportLines listed = report.lines(category, isGrouped);
        for (const BomLine line : listed.lines) {
            const Part &first = *line.front();
            csv.addCell(category);
            if (isGrouped) {
                csv.addCell(QString::number(line.size()));
            }
            csv.addCell(isGrouped ? report.references(line) : first.reference(), quotesReferences);
            for (const ReportColumn &column : report.columns()) {
                csv.addCell(report.text(first, column));
            }
            csv.endRow();
        }
    }
    return csv.bytes();
}
