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

void CsvText::addRow(QStringView leading, const QStringList &cells, qsizetype quoted)
{
    addCell(leading, false);
    for (qsizetype i = 0; i < cells.size(); ++i) {
        m_bytes.append(',');
        addCell(cells.at(i), i == quoted);
    }
    m_bytes.append('\n');
}

void CsvText::addCell(QStringView text, bool alwaysQuote)
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
    if (isEnclosed) {
        m_bytes.append('"');
    }
}
