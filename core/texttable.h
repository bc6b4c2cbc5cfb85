// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/hashindex.h"

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <vector>

/// Texts that occur again and again, each held once and known by its number: 0, 1, 2 in the order in which
/// they were met.
class TextTable final
{
public:
    /// The number of a text, which is taken in when it is new.
    [[nodiscard]] quint32 number(QStringView text);
    [[nodiscard]] quint32 number(const QString &text);
    /// The same for host text. Its bytes must stay until forgetHostTexts().
    [[nodiscard]] quint32 hostNumber(QByteArrayView text);
    void forgetHostTexts();

    [[nodiscard]] const QString &text(quint32 number) const { return m_texts[number]; }
    [[nodiscard]] size_t size() const { return m_texts.size(); }
    void clear();

private:
    struct HostText
    {
        QByteArrayView bytes;
        quint32 number = 0;
    };

    [[nodiscard]] quint32 find(quint64 hash, QStringView text) const;
    quint32 append(quint64 hash, const QString &text);

    std::vector<QString> m_texts;
    HashIndex m_index;
    std::vector<HostText> m_hostTexts;
    HashIndex m_hostIndex;
};
