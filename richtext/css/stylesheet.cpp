// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/stylesheet.h"

#include "richtext/css/cssscan.h"

namespace {

/// Replaces what stands at a place of the text.
struct Edit
{
    css::Span at;
    QString text;
};

[[nodiscard]] QString applied(const QString &text, const QList<Edit> &edits)
{
    QString out;
    qsizetype from = 0;
    for (const Edit &edit : edits) {
        out += QStringView(text).mid(from, qMax<qsizetype>(0, edit.at.begin - from));
        out += edit.text;
        from = edit.at.end;
    }
    out += QStringView(text).mid(from);
    return out;
}

[[nodiscard]] QString lineEnd(const QString &text)
{
    return text.contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
}

[[nodiscard]] bool isLineBlank(QChar c)
{
    return c.isSpace() && c != u'\n';
}

/// Where the blanks before `pos` begin on its line.
[[nodiscard]] qsizetype beforeBlanks(const QString &text, qsizetype pos)
{
    while (pos > 0 && isLineBlank(text.at(pos - 1))) {
        --pos;
    }
    return pos;
}

[[nodiscard]] qsizetype afterBlanks(const QString &text, qsizetype pos)
{
    while (pos < text.size() && isLineBlank(text.at(pos))) {
        ++pos;
    }
    return pos;
}

[[nodiscard]] bool opensLine(const QString &text, qsizetype pos)
{
    const qsizetype begin = beforeBlanks(text, pos);
    return begin == 0 || text.at(begin - 1) == u'\n';
}

/// The place after a declaration and the comments that follow it on its line.
[[nodiscard]] qsizetype afterRemarks(const QString &text, qsizetype pos)
{
    for (;;) {
        const qsizetype next = afterBlanks(text, pos);
        if (QStringView(text).mid(next, 2) != QLatin1String("/*")) {
            return pos;
        }
        const qsizetype end = text.indexOf(QLatin1String("*/"), next + 2);
        if (end < 0) {
            return pos;
        }
        pos = end + 2;
    }
}

/// Takes a declaration away, with its line when nothing else stands on it.
[[nodiscard]] Edit removal(const QString &text, css::Span declaration)
{
    const qsizetype begin = beforeBlanks(text, declaration.begin);
    const qsizetype end = afterBlanks(text, declaration.end);
    const bool endsLine = end < text.size() && text.at(end) == u'\n';
    if (opensLine(text, begin) && endsLine) {
        return {{begin, end + 1}, {}};
    }
    return endsLine ? Edit{{begin, declaration.end}, {}} : Edit{{declaration.begin, end}, {}};
}

/// Adds a declaration after the last one, or at the beginning of the block, in the layout found there.
[[nodiscard]] Edit addition(const QString &text, const css::RuleSpans &rule, const QString &declaration)
{
    if (!rule.declarations.isEmpty()) {
        const css::DeclarationSpans &last = rule.declarations.constLast();
        const qsizetype at = last.semicolon ? afterRemarks(text, last.all.end) : last.all.end;
        const qsizetype indent = beforeBlanks(text, last.all.begin);
        const QString gap = opensLine(text, indent)
                                ? lineEnd(text) + text.mid(indent, last.all.begin - indent)
                                : QStringLiteral(" ");
        return {{at, at}, (last.semicolon ? QString() : QStringLiteral(";")) + gap + declaration};
    }
    const QStringView body = rule.body.in(text);
    const QString line = lineEnd(text) + QStringLiteral("    ") + declaration;
    if (body.contains(u'\n')) {
        return {{rule.body.begin, rule.body.begin}, line};
    }
    if (body.trimmed().isEmpty()) {
        return {rule.body, line + lineEnd(text)};
    }
    return {{rule.body.begin, rule.body.begin}, QStringLiteral(" ") + declaration};
}

[[nodiscard]] QString withRule(const QString &text, const QString &selector, const QString &body)
{
    const QString line = lineEnd(text);
    QString out = text;
    if (!out.isEmpty() && !out.endsWith(u'\n')) {
        out += line;
    }
    if (!out.isEmpty()) {
        out += line;
    }
    const QString lines = body.contains(u'\n') ? body : line + QStringLiteral("    ") + body.trimmed() + line;
    return out + selector + QStringLiteral(" {") + lines + QStringLiteral("}") + line;
}

/// The last rule of a selector, null without one.
[[nodiscard]] const css::RuleSpans *lastRule(const css::Sheet &sheet, const QString &text,
                                             const QString &selector)
{
    const QString wanted = selector.simplified();
    for (auto rule = sheet.rules.crbegin(); rule != sheet.rules.crend(); ++rule) {
        if (css::withoutComments(rule->selector.in(text)) == wanted) {
            return &*rule;
        }
    }
    return nullptr;
}

/// The text with what is open at its end closed, so that something can follow.
[[nodiscard]] QString closed(const QString &text)
{
    return text + css::scan(text).closer;
}

[[nodiscard]] QString withDeclaration(const QString &text, const QString &selector,
                                      const QString &declaration)
{
    const QString whole = closed(text);
    const css::Sheet sheet = css::scan(whole);
    const css::RuleSpans *rule = lastRule(sheet, whole, selector);
    return rule ? applied(whole, {addition(whole, *rule, declaration)})
                : withRule(whole, selector.simplified(), declaration);
}

} // namespace

StyleSheet::StyleSheet(const QString &css)
    : m_text(css)
{
}

QList<StyleSheet::Rule> StyleSheet::rules() const
{
    QList<Rule> out;
    const css::Sheet sheet = css::scan(m_text);
    for (const css::RuleSpans &spans : sheet.rules) {
        Rule rule{css::withoutComments(spans.selector.in(m_text)),
                  spans.title.in(m_text).toString().simplified(),
                  {}};
        for (const css::DeclarationSpans &declaration : spans.declarations) {
            rule.declarations.append({css::withoutComments(declaration.property.in(m_text)).toLower(),
                                      declaration.value.in(m_text).toString()});
        }
        out.append(rule);
    }
    return out;
}

QString StyleSheet::value(const QString &selector, const QString &property) const
{
    const QString wanted = selector.simplified();
    const css::Sheet sheet = css::scan(m_text);
    for (auto rule = sheet.rules.crbegin(); rule != sheet.rules.crend(); ++rule) {
        if (css::withoutComments(rule->selector.in(m_text)) != wanted) {
            continue;
        }
        for (auto found = rule->declarations.crbegin(); found != rule->declarations.crend(); ++found) {
            if (css::withoutComments(found->property.in(m_text)).compare(property, Qt::CaseInsensitive) ==
                0) {
                return found->value.in(m_text).toString();
            }
        }
    }
    return {};
}

void StyleSheet::setValue(const QString &selector, const QString &property, const QString &value)
{
    const css::Sheet sheet = css::scan(m_text);
    const css::RuleSpans *rule = lastRule(sheet, m_text, selector);
    QList<css::DeclarationSpans> found;
    if (rule) {
        for (const css::DeclarationSpans &spans : rule->declarations) {
            if (css::withoutComments(spans.property.in(m_text)).compare(property, Qt::CaseInsensitive) == 0) {
                found.append(spans);
            }
        }
    }
    if (found.isEmpty() && !value.isEmpty()) {
        m_text = withDeclaration(m_text, selector,
                                 property.toLower() + QStringLiteral(": ") + value + QStringLiteral(";"));
        return;
    }
    QList<Edit> edits;
    for (const css::DeclarationSpans &spans : found) {
        const bool replaces = !value.isEmpty() && spans.all.begin == found.constLast().all.begin;
        edits.append(replaces ? Edit{spans.value, value} : removal(m_text, spans.all));
    }
    m_text = applied(m_text, edits);
}

QString StyleSheet::body(const QString &selector) const
{
    const css::Sheet sheet = css::scan(m_text);
    const css::RuleSpans *rule = lastRule(sheet, m_text, selector);
    return rule ? rule->body.in(m_text).toString() : QString();
}

void StyleSheet::setBody(const QString &selector, const QString &body)
{
    const QString whole = closed(m_text);
    const css::Sheet sheet = css::scan(whole);
    const css::RuleSpans *rule = lastRule(sheet, whole, selector);
    m_text = rule ? applied(whole, {{rule->body, body}}) : withRule(whole, selector.simplified(), body);
}
