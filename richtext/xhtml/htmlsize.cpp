// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/htmlsize.h"

#include <QCoreApplication>
#include <QList>
#include <QSet>

#include <algorithm>

namespace {

bool isNameStart(QChar unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

QString nameAt(QStringView html, qsizetype at)
{
    qsizetype end = at;
    while (end < html.size() && (isNameStart(html[end]) || html[end].isDigit())) {
        ++end;
    }
    return html.sliced(at, end - at).toString().toLower();
}

/// The place after the next `text`, or the end.
qsizetype after(QStringView html, QStringView text, qsizetype from)
{
    const qsizetype at = html.indexOf(text, from, Qt::CaseInsensitive);
    return at < 0 ? html.size() : at + text.size();
}

/// The place after a tag's end; values in quotes may hold ">".
qsizetype afterTag(QStringView html, qsizetype at)
{
    QChar quote;
    for (; at < html.size(); ++at) {
        const QChar unit = html[at];
        if (!quote.isNull()) {
            quote = unit == quote ? QChar() : quote;
        } else if (unit == u'>') {
            return at + 1;
        } else if ((unit == u'"' || unit == u'\'') && html[at - 1] == u'=') {
            quote = unit;
        }
    }
    return at;
}

/// Rather too many than too few; what stands in quotes is no end.
int attributeEnds(QStringView tag)
{
    int count = 0;
    QChar quote;
    bool isValue = false;
    for (qsizetype at = 1; at < tag.size(); ++at) {
        const QChar unit = tag[at];
        if (!quote.isNull()) {
            quote = unit == quote ? QChar() : quote;
        } else if ((unit == u'"' || unit == u'\'') && tag[at - 1] == u'=') {
            quote = unit;
        } else if (unit == u'=') {
            isValue = true;
        } else if (unit.isSpace() || unit == u'"' || unit == u'\'' || (unit == u'/' && !isValue)) {
            isValue = false;
            ++count;
        }
    }
    return count;
}

/// Elements that never hold others, and those that end where the next of their kind begins.
bool staysOpen(const QString &name)
{
    static const QSet<QString> others{
        QStringLiteral("area"),  QStringLiteral("base"),  QStringLiteral("br"),    QStringLiteral("col"),
        QStringLiteral("hr"),    QStringLiteral("img"),   QStringLiteral("input"), QStringLiteral("link"),
        QStringLiteral("meta"),  QStringLiteral("param"), QStringLiteral("p"),     QStringLiteral("li"),
        QStringLiteral("dd"),    QStringLiteral("dt"),    QStringLiteral("td"),    QStringLiteral("th"),
        QStringLiteral("tr"),    QStringLiteral("tbody"), QStringLiteral("thead"), QStringLiteral("tfoot"),
        QStringLiteral("option")};
    return !others.contains(name);
}

/// Keeps what stands open, which is no more than deepest.
class SizeCounter final
{
public:
    explicit SizeCounter(QStringView html)
        : m_html(html)
    {
    }

    HtmlSize run()
    {
        qsizetype at = 0;
        while (m_size.depth <= HtmlSize::deepest && (at = m_html.indexOf(u'<', at)) >= 0) {
            at = tagAt(at);
        }
        return m_size;
    }

private:
    qsizetype tagAt(qsizetype at)
    {
        if (m_html.sliced(at).startsWith(u"<!--")) {
            return after(m_html, u"-->", at);
        }
        const bool ends = at + 1 < m_html.size() && m_html[at + 1] == u'/';
        const qsizetype nameStart = at + (ends ? 2 : 1);
        if (nameStart >= m_html.size() || !isNameStart(m_html[nameStart])) {
            return at + 1;
        }
        const QString name = nameAt(m_html, nameStart);
        const qsizetype next = afterTag(m_html, nameStart + name.size());
        m_size.attributeEnds = std::max(m_size.attributeEnds, attributeEnds(m_html.sliced(at, next - at)));
        if (ends) {
            close(name);
            return next;
        }
        ++m_size.elements;
        if (name == QLatin1String("script") || name == QLatin1String("style")) {
            return after(m_html, QString(QLatin1String("</") + name), next);
        }
        if (staysOpen(name) && m_html[next - 2] != u'/') {
            m_open.append(name);
            m_size.depth = std::max(m_size.depth, int(m_open.size()));
        }
        return next;
    }

    void close(const QString &name)
    {
        const qsizetype at = m_open.lastIndexOf(name);
        if (at >= 0) {
            m_open.resize(at);
        }
    }

    QStringView m_html;
    QList<QString> m_open;
    HtmlSize m_size;
};

} // namespace

QString HtmlSize::tooManyAttributes()
{
    return QCoreApplication::translate("HtmlSize", "An HTML element has too many attributes.");
}

HtmlSize htmlSize(QStringView html)
{
    return SizeCounter(html).run();
}
