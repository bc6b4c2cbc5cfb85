// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/jsonwriter.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr bool needsEscape(char c)
{
    return c == '"' || c == '\\' || uchar(c) < 0x20 || c == 0x7f;
}

} // namespace

void JsonWriter::key(QStringView name)
{
    separate();
    append(name);
    m_bytes += ':';
    m_needsComma = false;
}

void JsonWriter::text(QStringView value)
{
    separate();
    append(value);
    m_needsComma = true;
}

void JsonWriter::number(qint64 value)
{
    separate();
    m_bytes += QByteArray::number(value);
    m_needsComma = true;
}

void JsonWriter::entry(QStringView name, QStringView value)
{
    key(name);
    text(value);
}

void JsonWriter::separate()
{
    if (m_needsComma) {
        m_bytes += ',';
    }
    if (m_wantsLine) {
        m_bytes += '\n';
        m_wantsLine = false;
    }
}

void JsonWriter::open(char bracket)
{
    separate();
    m_bytes += bracket;
    m_needsComma = false;
}

void JsonWriter::close(char bracket)
{
    if (m_wantsLine) {
        m_bytes += '\n';
        m_wantsLine = false;
    }
    m_bytes += bracket;
    m_needsComma = true;
}

void JsonWriter::append(QStringView text)
{
    m_bytes += '"';
    const QByteArray utf8 = text.toUtf8();
    auto begin = utf8.begin();
    while (begin != utf8.end()) {
        const auto end = std::find_if(begin, utf8.end(), needsEscape);
        m_bytes.append(begin, end - begin);
        if (end == utf8.end()) {
            break;
        }
        appendEscaped(*end);
        begin = end + 1;
    }
    m_bytes += '"';
}

void JsonWriter::appendEscaped(char c)
{
    if (c == '"' || c == '\\') {
        m_bytes += '\\';
        m_bytes += c;
        return;
    }
    char escape[7];
    std::snprintf(escape, sizeof escape, "\\u%04x", unsigned(uchar(c)));
    m_bytes += escape;
}
