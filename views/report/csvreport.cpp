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

/// A growing CSV text: cells, each ended by a separator, and the ends of rows.
class CsvText final
{
public:
    explicit CsvText(const CsvDialect &dialect)
        : m_separator(dialect.separator)
        , m_bytes(dialect.hasByteOrderMark ? "\xEF\xBB\xBF" : "")
    {
    }

    void addCell(QStringView text, bool alwaysQuote = false)
    {
        const bool isEnclosed = alwaysQuote || text.contains(m_separator);
        if (isEnclosed) {
            m_bytes.append('"');
        }
        while (!text.isEmpty()) {
            const qsizetype kept = std::find_if(text.begin(), text.end(), isDropped) - text.begin();
            appendUtf8(m_bytes, text.first(kept));
            text = text.mid(kept + 1);
        }
        if (isEnclosed) {
            m_bytes.append('"');
        }
        m_bytes.append(m_separator.toLatin1());
    }
    /// After at least one cell.
    void endRow() { m_bytes.back() = '\n'; }

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    QChar m_separator;
    QByteArray m_bytes;
};

} // namespace

CsvDialect spreadsheetDialect(const QLocale &locale)
{
    const bool hasSemicolon = locale.decimalPoint() == QStringLiteral(",") ||
                              locale.territory() == QLocale::Switzerland ||
                              locale.territory() == QLocale::Liechtenstein;
    return {hasSemicolon ? u';' : u',', true};
}

QByteArray csvReport(const Report &report, CsvRows rows, const CsvDialect &dialect)
{
    const bool isGrouped = rows == CsvRows::Lines;
    const bool quotesReferences = report.settings().alwaysQuoteRefs();
    CsvText csv(dialect);
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
                csv.addCell(Report::text(Report::quantity(line)));
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
