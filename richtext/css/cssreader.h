// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/cssscan.h"

namespace css {

enum class Token
{
    Blank,
    Comment,
    Other
};

/// Goes through a text piece by piece: a comment, a string, an escaped character or a single character.
class Reader
{
public:
    explicit Reader(QStringView text)
        : m_text(text)
    {
    }

    [[nodiscard]] bool atEnd() const { return m_pos >= m_text.size(); }
    [[nodiscard]] qsizetype pos() const { return m_pos; }
    void goTo(qsizetype pos) { m_pos = pos; }

    [[nodiscard]] bool looksAt(QLatin1String what, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;

    /// Reads one piece; not at the end.
    Token next();
    /// The character of the last piece when it was a single one, a line feed when it was a string that the
    /// end of its line broke off, else a null character.
    [[nodiscard]] char16_t sign() const { return m_sign; }

    /// Keeps the gravest fault.
    void report(Fault fault, qsizetype at);
    /// Adds to what has to follow the text.
    void close(const QString &with) { m_sheet.closer += with; }

protected:
    [[nodiscard]] QStringView text() const { return m_text; }
    [[nodiscard]] Sheet &sheet() { return m_sheet; }

private:
    void comment();
    void string(QChar quote);
    void escape();
    [[nodiscard]] bool beginsUrl() const;
    void url();

    QStringView m_text;
    qsizetype m_pos = 0;
    char16_t m_sign = 0;
    Sheet m_sheet;
};

} // namespace css
