// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace designs::kicad {

/// Reads the S-expressions of KiCad's files token by token, on the bytes of the file and without copying
/// them, and skips lists that nobody asks for at memory speed. Texts come as they stand in the file, in
/// UTF-8. Format: https://dev-docs.kicad.org/en/file-formats/sexpr-intro/
class SexprScanner
{
public:
    enum class Token
    {
        Open,
        Close,
        Text,
        End,
        Error
    };

    /// Lists deeper than this are refused.
    static constexpr int maximumDepth = 1000;
    explicit SexprScanner(std::string_view text);

    /// The next token. After Open, keyword() is the list's first atom, already consumed.
    Token next();

    /// The first atom of the list just opened, empty when the list begins with something else.
    [[nodiscard]] std::string_view keyword() const { return m_text; }

    /// The text token just read, as it stands: with escapes, without quotes.
    [[nodiscard]] std::string_view raw() const { return m_text; }
    /// Whether the text token was quoted.
    [[nodiscard]] bool isQuoted() const { return m_quoted; }
    /// False when the text token cannot hold a "{".
    [[nodiscard]] bool mayHoldBrace() const { return m_brace; }
    /// True when the text token holds nothing but ASCII.
    [[nodiscard]] bool isAscii() const { return m_ascii; }
    /// The text token with the escapes resolved; a text with escapes stays valid until the next call.
    [[nodiscard]] std::string_view text();

    /// Goes behind the end of the innermost open list, whatever it holds.
    bool skipList();

    /// Reads the list's next item if it is a text; false when there is none (the token after it stays
    /// unread).
    bool takeText();

    /// Position of the last token's first byte and of the next byte to read.
    [[nodiscard]] std::size_t tokenOffset() const { return std::size_t(m_token - m_begin); }
    [[nodiscard]] std::size_t offset() const { return std::size_t(m_at - m_begin); }

    [[nodiscard]] bool failed() const { return !m_error.isEmpty(); }
    [[nodiscard]] const QString &error() const { return m_error; }
    /// The line of the error, counted from 1.
    [[nodiscard]] int errorLine() const;

private:
    Token fail(const QString &text, const char *at);
    bool skipBlanks();
    bool atLineStart(const char *at) const;
    void findTextStop();
    Token readQuoted();
    Token readAtom();
    bool skipByteWise(const char *stop, int *depth);
    bool skipQuotedRest(const char *start);
    bool skipBlocks(int *depth, bool *quoted);
    void skipComment();
    bool failUnclosed();

    const char *m_begin;
    const char *m_end;
    const char *m_at;
    const char *m_token;
    std::string_view m_text;
    bool m_quoted = false;
    bool m_escaped = false;
    bool m_brace = false;
    bool m_ascii = false;
    std::string m_unescaped;
    QString m_error;
    const char *m_errorAt = nullptr;
};

/// The text with the escapes of a quoted token resolved: \" \\ \a \b \f \n \r \t \v, \xHH and octal \ooo; a
/// backslash before anything else stays.
[[nodiscard]] std::string unescapeQuoted(std::string_view raw);

} // namespace designs::kicad
