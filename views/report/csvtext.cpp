// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/csvtext.h"

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

} // namespace

CsvDialect spreadsheetDialect(const QLocale &locale)
{
    const bool hasSemicolon = locale.decimalPoint() == QStringLiteral(",") ||
                              locale.territory() == QLocale::Switzerland ||
                              locale.territory() == QLocale::Liechtenstein;
    return {hasSemicolon ? u';' : u',', true};
}

CsvText::CsvText(const CsvDialect &dialect, CsvQuotes quotes)
    : m_separator(dialect.separator)
    , m_quotes(quotes)
    , m_bytes(dialect.hasByteOrderMark ? "\xEF\xBB\xBF" : "")
{
}

void CsvText::addCell(QStringView text, bool alwaysQuote)
{
    const bool doublesQuotes = m_quotes == CsvQuotes::Doubled;
    const bool isEnclosed =
        alwaysQuote || text.contains(m_separator) || (doublesQuotes && text.contains(u'"'));
    if (isEnclosed) {
        m_bytes.append('"');
    }
    while (!text.isEmpty()) {
        const qsizetype kept = std::find_if(text.begin(), text.end(), isDropped) - text.begin();
        appendUtf8(m_bytes, text.first(kept));
        if (doublesQuotes && kept < text.size() && text[kept] == u'"') {
            m_bytes.append("\"\"");
        }
        text = text.mid(kept + 1);
    }
    if (isEnclosed) {
        m_bytes.append('"');
    }
    m_bytes.append(m_separator.toLatin1());
}
