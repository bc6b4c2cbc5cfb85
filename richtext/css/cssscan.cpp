// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/cssscan.h"

#include "richtext/css/cssreader.h"

namespace css {
namespace {

/// One declaration while it is read.
struct Piece
{
    DeclarationSpans spans;
    qsizetype colon = -1;
    qsizetype braces = 0;
    qsizetype brackets = 0;
    bool broken = false;

    [[nodiscard]] bool isGood() const
    {
        return !broken && brackets == 0 && colon >= 0 && !spans.property.isEmpty() && !spans.value.isEmpty();
    }

    /// Takes in a piece of the text that is neither blank nor comment.
    void add(Span at)
    {
        if (colon < 0) {
            spans.property.end = at.end;
        } else if (at.begin != colon) {
            if (spans.value.isEmpty()) {
                spans.value.begin = at.begin;
            }
            spans.value.end = at.end;
        }
    }
};

class Scanner : private Reader
{
public:
    using Reader::Reader;

    Sheet run()
    {
        while (!atEnd()) {
            const qsizetype begin = pos();
            if (looksAt(QLatin1String("<!--"))) {
                goTo(begin + 4);
            } else if (looksAt(QLatin1String("-->"))) {
                goTo(begin + 3);
            } else if (const Token token = next(); token == Token::Comment) {
                title({begin, pos()});
            } else if (token == Token::Other) {
                statement(begin);
            }
        }
        return std::move(sheet());
    }

private:
    void title(Span comment)
    {
        const QLatin1String mark("_H");
        Span inner{comment.begin + 2, comment.end};
        if (inner.in(text()).endsWith(QLatin1String("*/"))) {
            inner.end -= 2;
        }
        while (!inner.isEmpty() && text().at(inner.begin).isSpace()) {
            ++inner.begin;
        }
        if (inner.in(text()).startsWith(mark)) {
            inner.begin += mark.size();
            m_title = inner;
        }
    }

    /// What begins at `begin`, its first piece being read already.
    void statement(qsizetype begin)
    {
        switch (sign()) {
        case u';':
            return;
        case u'}':
            report(Fault::StrayBrace, begin);
            return;
        case u'@':
            atRule(begin);
            break;
        default:
            goTo(begin);
            rule();
        }
        m_title = {};
    }

    void atRule(qsizetype begin)
    {
        qsizetype depth = 0;
        while (!atEnd()) {
            const qsizetype at = pos();
            next();
            if (sign() == u'{') {
                ++depth;
            } else if (sign() == u'}' && depth == 0) {
                goTo(at);
                return;
            } else if ((sign() == u'}' && --depth == 0) || (sign() == u';' && depth == 0)) {
                return;
            }
        }
        if (depth > 0) {
            report(Fault::OpenBlock, begin);
        }
        close(depth > 0 ? QString(depth, u'}') : QStringLiteral(";"));
    }

    void rule()
    {
        RuleSpans rule;
        rule.title = m_title;
        rule.selector = {pos(), pos()};
        while (!atEnd()) {
            const qsizetype at = pos();
            const Token token = next();
            if (sign() == u'{') {
                block(rule, at);
                if (!rule.selector.isEmpty()) {
                    sheet().rules.append(std::move(rule));
                }
                return;
            }
            if (sign() == u';' || sign() == u'}') {
                report(Fault::NoBlock, rule.selector.begin);
                return;
            }
            if (token == Token::Other) {
                rule.selector.end = pos();
            }
        }
        report(Fault::NoBlock, rule.selector.begin);
        close(QStringLiteral(" {}"));
    }

    void block(RuleSpans &rule, qsizetype brace)
    {
        if (rule.selector.isEmpty()) {
            report(Fault::BadDeclaration, brace);
        }
        rule.body = {pos(), text().size()};
        while (!atEnd()) {
            const qsizetype at = pos();
            const Token token = next();
            if (sign() == u'}') {
                rule.body.end = at;
                return;
            }
            if (token == Token::Other && sign() != u';') {
                goTo(at);
                declaration(rule);
            }
        }
        report(Fault::OpenBlock, brace);
        close(QStringLiteral("}"));
    }

    void declaration(RuleSpans &rule)
    {
        Piece piece;
        piece.spans.all = {pos(), pos()};
        piece.spans.property = piece.spans.all;
        while (!atEnd()) {
            const qsizetype at = pos();
            const Token token = next();
            if (sign() == u'}' && piece.braces == 0) {
                goTo(at);
                break;
            }
            if (token != Token::Blank) {
                piece.spans.all.end = pos();
            }
            if (endsDeclaration(piece)) {
                break;
            }
            if (sign() == u':' && piece.colon < 0) {
                piece.colon = at;
            }
            if (token == Token::Other) {
                piece.add({at, pos()});
            }
        }
        if (piece.braces > 0) {
            close(QString(piece.braces, u'}'));
        }
        if (piece.isGood()) {
            rule.declarations.append(piece.spans);
        } else {
            report(Fault::BadDeclaration, piece.spans.all.begin);
        }
    }

    /// Counts brackets; true at the semicolon or at the end of a block inside the declaration.
    [[nodiscard]] bool endsDeclaration(Piece &piece) const
    {
        switch (sign()) {
        case u'{':
            ++piece.braces;
            piece.broken = true;
            return false;
        case u'}':
            return --piece.braces == 0;
        case u'\n':
            piece.broken = true;
            return false;
        case u'(':
        case u'[':
            ++piece.brackets;
            return false;
        case u')':
        case u']':
            piece.brackets = qMax<qsizetype>(0, piece.brackets - 1);
            return false;
        case u';':
            piece.spans.semicolon = piece.braces == 0 && piece.brackets == 0;
            return piece.spans.semicolon;
        default:
            return false;
        }
    }

    Span m_title;
};

} // namespace

Sheet scan(QStringView text)
{
    return Scanner(text).run();
}

QString plain(QStringView text)
{
    QString out;
    Reader reader(text);
    while (!reader.atEnd()) {
        const qsizetype begin = reader.pos();
        const Token token = reader.next();
        if (token == Token::Other) {
            out += text.mid(begin, reader.pos() - begin);
        } else if (!out.endsWith(u' ')) {
            out += u' ';
        }
    }
    return out.trimmed();
}

} // namespace css
