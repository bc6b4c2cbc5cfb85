// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/cssscan.h"

#include <QCoreApplication>

namespace css {
namespace {

/// One declaration while it is read.
struct Candidate
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

    /// Takes in a token that is neither blank nor comment.
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

/// Reads a style sheet in one pass, from left to right and going back by one token at most, so that even a
/// text of nothing but braces costs time in proportion to its length. It notes places instead of copying
/// texts: an edit replaces what stands at a place and leaves every other character as it was written. Where
/// CSS has a syntax error browsers skip up to the next semicolon or brace of the same level; so does this,
/// and notes the fault.
class Scanner : private TokenReader
{
public:
    using TokenReader::TokenReader;

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
        return {std::move(m_rules), fault(), faultAt(), closer()};
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

    /// A rule, at-rule or stray sign that begins at `begin`; its first token is read already.
    void statement(qsizetype begin)
    {
        switch (character()) {
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
            if (character() == u'{') {
                ++depth;
            } else if (character() == u'}' && depth == 0) {
                goTo(at);
                return;
            } else if ((character() == u'}' && --depth == 0) || (character() == u';' && depth == 0)) {
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
            if (character() == u'{') {
                block(rule, at);
                if (!rule.selector.isEmpty()) {
                    m_rules.append(std::move(rule));
                }
                return;
            }
            if (character() == u';' || character() == u'}') {
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
            if (character() == u'}') {
                rule.body.end = at;
                return;
            }
            if (token == Token::Other && character() != u';') {
                goTo(at);
                declaration(rule);
            }
        }
        report(Fault::OpenBlock, brace);
        close(QStringLiteral("}"));
    }

    void declaration(RuleSpans &rule)
    {
        Candidate candidate;
        candidate.spans.all = {pos(), pos()};
        candidate.spans.property = candidate.spans.all;
        while (!atEnd()) {
            const qsizetype at = pos();
            const Token token = next();
            if (character() == u'}' && candidate.braces == 0) {
                goTo(at);
                break;
            }
            if (token != Token::Blank) {
                candidate.spans.all.end = pos();
            }
            if (endsDeclaration(candidate)) {
                break;
            }
            if (character() == u':' && candidate.colon < 0) {
                candidate.colon = at;
            }
            if (token == Token::Other) {
                candidate.add({at, pos()});
            }
        }
        if (candidate.braces > 0) {
            close(QString(candidate.braces, u'}'));
        }
        if (candidate.isGood()) {
            rule.declarations.append(candidate.spans);
        } else {
            report(Fault::BadDeclaration, candidate.spans.all.begin);
        }
    }

    /// Counts brackets; true at the semicolon or at the end of a block inside the declaration.
    [[nodiscard]] bool endsDeclaration(Candidate &candidate) const
    {
        switch (character()) {
        case u'{':
            ++candidate.braces;
            candidate.broken = true;
            return false;
        case u'}':
            return --candidate.braces == 0;
        case u'\n':
            candidate.broken = true;
            return false;
        case u'(':
        case u'[':
            ++candidate.brackets;
            return false;
        case u')':
        case u']':
            candidate.brackets = qMax<qsizetype>(0, candidate.brackets - 1);
            return false;
        case u';':
            candidate.spans.semicolon = candidate.braces == 0 && candidate.brackets == 0;
            return candidate.spans.semicolon;
        default:
            return false;
        }
    }

    QList<RuleSpans> m_rules;
    Span m_title;
};

[[nodiscard]] QString faultText(Fault fault)
{
    switch (fault) {
    case Fault::None:
        break;
    case Fault::BadDeclaration:
        return QCoreApplication::translate("TextStyleEditor", "this is not a property with a value");
    case Fault::NoBlock:
        return QCoreApplication::translate("TextStyleEditor", "a style without its braces begins here");
    case Fault::StrayBrace:
        return QCoreApplication::translate("TextStyleEditor", "this brace closes nothing");
    case Fault::OpenString:
        return QCoreApplication::translate("TextStyleEditor", "this string is not closed");
    case Fault::OpenComment:
        return QCoreApplication::translate("TextStyleEditor", "this comment is not closed");
    case Fault::OpenBlock:
        return QCoreApplication::translate("TextStyleEditor", "this brace is not closed");
    }
    return {};
}

} // namespace

Sheet scan(QStringView text)
{
    return Scanner(text).run();
}

QString faultMessage(const QString &text)
{
    const Sheet sheet = scan(text);
    if (sheet.fault == Fault::None) {
        return {};
    }
    const qsizetype line = QStringView(text).left(sheet.faultAt).count(u'\n') + 1;
    return QCoreApplication::translate("TextStyleEditor", "Line %1 of the style sheet: %2.")
        .arg(QString::number(line), faultText(sheet.fault));
}

} // namespace css
