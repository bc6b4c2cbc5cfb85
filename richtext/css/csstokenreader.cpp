// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/csstokenreader.h"

namespace css {

bool TokenReader::looksAt(QLatin1String what, Qt::CaseSensitivity sensitivity) const
{
    return m_text.mid(m_pos, what.size()).compare(what, sensitivity) == 0;
}

Token TokenReader::next()
{
    const QChar c = m_text.at(m_pos);
    m_character = 0;
    if (c.isSpace()) {
        ++m_pos;
        return Token::Blank;
    }
    if (looksAt(QLatin1String("/*"))) {
        comment();
        return Token::Comment;
    }
    if (c == u'"' || c == u'\'') {
        string(c);
    } else if (c == u'\\') {
        escape();
    } else if (beginsUrl()) {
        url();
    } else {
        m_character = c.unicode();
        ++m_pos;
    }
    return Token::Other;
}

void TokenReader::report(Fault fault, qsizetype at)
{
    if (fault > m_fault) {
        m_fault = fault;
        m_faultAt = at;
    }
}

void TokenReader::comment()
{
    const qsizetype end = m_text.indexOf(QLatin1String("*/"), m_pos + 2);
    if (end < 0) {
        report(Fault::OpenComment, m_pos);
        m_closer = QStringLiteral("*/");
    }
    m_pos = end < 0 ? m_text.size() : end + 2;
}

void TokenReader::string(QChar quote)
{
    const qsizetype begin = m_pos++;
    QString closer(quote);
    for (; m_pos < m_text.size(); ++m_pos) {
        const QChar c = m_text.at(m_pos);
        if (c == quote) {
            ++m_pos;
            return;
        }
        if (c == u'\n') {
            report(Fault::OpenString, begin);
            m_character = u'\n';
            return;
        }
        if (c == u'\\' && ++m_pos == m_text.size()) {
            closer.prepend(u'\\');
            break;
        }
    }
    report(Fault::OpenString, begin);
    m_closer = closer;
}

void TokenReader::escape()
{
    if (m_pos + 1 == m_text.size()) {
        m_closer = QStringLiteral("\\");
    }
    m_pos = qMin(m_pos + 2, m_text.size());
}

// An address without quotes may hold semicolons and what looks like a comment.
bool TokenReader::beginsUrl() const
{
    const auto inName = [](QChar c) { return c.isLetterOrNumber() || c == u'-' || c == u'_'; };
    return looksAt(QLatin1String("url("), Qt::CaseInsensitive) &&
           (m_pos == 0 || !inName(m_text.at(m_pos - 1)));
}

void TokenReader::url()
{
    qsizetype at = m_pos + 4;
    while (at < m_text.size() && m_text.at(at).isSpace()) {
        ++at;
    }
    if (at < m_text.size() && (m_text.at(at) == u'"' || m_text.at(at) == u'\'')) {
        m_pos += 3; // an ordinary bracket with a string in it
        return;
    }
    while (at < m_text.size() && m_text.at(at) != u')' && m_text.at(at) != u'\n') {
        ++at;
    }
    if (at == m_text.size()) {
        report(Fault::OpenString, m_pos);
        m_closer = QStringLiteral(")");
    }
    m_pos = qMin(at + 1, m_text.size());
}

QString withoutComments(QStringView text)
{
    QString out;
    TokenReader reader(text);
    while (!reader.atEnd()) {
        const qsizetype begin = reader.pos();
        if (reader.next() == Token::Other) {
            out += text.mid(begin, reader.pos() - begin);
        } else if (!out.endsWith(u' ')) {
            out += u' ';
        }
    }
    return out.trimmed();
}

} // namespace css
