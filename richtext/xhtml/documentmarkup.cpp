// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/documentmarkup.h"

#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/markupwriter.h"
#include "richtext/xhtml/shownstyle.h"
#include "richtext/xhtml/xmltext.h"

#include <QStringBuilder>

namespace {

constexpr auto highlightColour = "#ffe08a";

QString highlightRule(const QString &selector)
{
    // All of it would be marked.
    if (selector.isEmpty() || selector == QLatin1String("body")) {
        return {};
    }
    return QStringLiteral("\n") + selector + QStringLiteral(" { background-color: ") +
           QLatin1String(highlightColour) + QStringLiteral("; }\n");
}

} // namespace

DocumentParts takeApart(const QString &xhtml)
{
    const qsizetype element = xhtml.indexOf(QLatin1String("<style"), 0, Qt::CaseInsensitive);
    const qsizetype start = element < 0 ? -1 : xhtml.indexOf(u'>', element) + 1;
    const qsizetype end =
        start <= 0 ? -1 : xhtml.indexOf(QLatin1String("</style"), start, Qt::CaseInsensitive);
    if (end >= 0) {
        return {xhtml.left(start), xhtml.mid(start, end - start), xhtml.mid(end)};
    }
    const qsizetype head = xhtml.indexOf(QLatin1String("</head"), 0, Qt::CaseInsensitive);
    const qsizetype place = head < 0 ? 0 : head;
    return {xhtml.left(place) + QStringLiteral("<style type=\"text/css\">"),
            {},
            QStringLiteral("</style>") + xhtml.mid(place)};
}

QStringView bodyOf(QStringView xhtml)
{
    const qsizetype element = xhtml.indexOf(QLatin1String("<body"), 0, Qt::CaseInsensitive);
    const qsizetype start = element < 0 ? 0 : xhtml.indexOf(u'>', element) + 1;
    const qsizetype end = xhtml.lastIndexOf(QLatin1String("</body"), -1, Qt::CaseInsensitive);
    return xhtml.sliced(start, (end < start ? xhtml.size() : end) - start);
}

QString shownMarkup(const QString &xhtml, const StyleSheet &css, Medium medium, const QString &highlighted)
{
    const DocumentParts parts = takeApart(xhtml);
    const ShownStyle style(css);
    const QStringView tail(parts.tail);
    const QStringView body = bodyOf(tail);
    const qsizetype bodyStart = body.data() - tail.data();
    // Previews draw soft hyphens everywhere; the space without width that follows is enough to break a line.
    const QString text = body.toString().replace(QStringLiteral("&shy;&#8203;"), QStringLiteral("&#8203;"));
    return parts.head % styleElementText(style.css() % highlightRule(highlighted)) % tail.first(bodyStart) %
           markupFor(medium, text, style) % tail.sliced(bodyStart + body.size());
}
