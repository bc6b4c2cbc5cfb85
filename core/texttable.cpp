// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/texttable.h"

#include "host/framework/hosttext.h"

quint32 TextTable::number(QStringView text)
{
    const quint64 hash = hashText(text);
    const quint32 known = find(hash, text);
    return known == HashIndex::None ? append(hash, text.toString()) : known;
}

quint32 TextTable::number(const QString &text)
{
    const quint64 hash = hashText(text);
    const quint32 known = find(hash, text);
    return known == HashIndex::None ? append(hash, text) : known;
}

quint32 TextTable::hostNumber(QByteArrayView text)
{
    const quint64 hash = hashBytes(text.data(), size_t(text.size()));
    const quint32 known =
        m_hostIndex.find(hash, [&](quint32 index) { return m_hostTexts[index].bytes == text; });
    if (known != HashIndex::None) {
        return m_hostTexts[known].number;
    }
    m_hostIndex.insert(hash, quint32(m_hostTexts.size()));
    m_hostTexts.push_back({text, number(fromHostText(text))});
    return m_hostTexts.back().number;
}

void TextTable::forgetHostTexts()
{
    m_hostTexts = {};
    m_hostIndex.clear();
}

void TextTable::clear()
{
    m_texts = {};
    m_index.clear();
    forgetHostTexts();
}

quint32 TextTable::find(quint64 hash, QStringView text) const
{
    return m_index.find(hash, [&](quint32 index) { return m_texts[index] == text; });
}

quint32 TextTable::append(quint64 hash, const QString &text)
{
    const auto number = quint32(m_texts.size());
    m_texts.push_back(text);
    m_index.insert(hash, number);
    return number;
}
