// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace css {

/// What is wrong with a text, the graver the later.
enum class Fault
{
    None,
    BadDeclaration,
    NoBlock,
    StrayBrace,
    OpenString,
    OpenComment,
    OpenBlock
};

enum class Token
{
    Blank,
    Comment,
    Other
};

/// Goes through a text token by token: a blank, a comment, a string, an address in url(), an escaped
/// character or a single character. No text makes it fail: what is wrong is kept as a fault.
class TokenReader
{
public:
    explicit TokenReader(QStringView text)
        : m_text(text)
    {
    }

    [[nodiscard]] QStringView text() const { return m_text; }
    [[nodiscard]] bool atEnd() const { return m_pos >= m_text.size(); }
    [[nodiscard]] qsizetype pos() const { return m_pos; }
    void goTo(qsizetype pos) { m_pos = pos; }

    [[nodiscard]] bool looksAt(QLatin1String what, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;

    /// Reads one token; not at the end.
    Token next();
    /// The character of the last token when it was a single one, a line feed when it was a string that the
    /// end of its line broke off, else a null character.
    [[nodiscard]] char16_t character() const { return m_character; }

    /// Keeps the gravest fault, and of several of a kind the first.
    void report(Fault fault, qsizetype at);
    [[nodiscard]] Fault fault() const { return m_fault; }
    [[nodiscard]] qsizetype faultAt() const { return m_faultAt; }

    /// Adds to what has to follow the text so that nothing in it is open any more.
    void close(const QString &with) { m_closer += with; }
    [[nodiscard]] const QString &closer() const { return m_closer; }

private:
    void comment();
    void string(QChar quote);
    void escape();
    [[nodiscard]] bool beginsUrl() const;
    void url();

    QStringView m_text;
    qsizetype m_pos = 0;
    char16_t m_character = 0;
    Fault m_fault = Fault::None;
    qsizetype m_faultAt = 0;
    QString m_closer;
};

/// A selector or property without comments, its runs of blanks made one.
[[nodiscard]] QString withoutComments(QStringView text);

} // namespace css
