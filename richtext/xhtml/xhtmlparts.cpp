// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlparts.h"

#include "richtext/xhtml/xmltext.h"

#include <QStringBuilder>

XhtmlParts splitXhtml(const QString &xhtml)
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

QString joinXhtml(const XhtmlParts &parts, const QString &css, QStringView body)
{
    const QStringView tail(parts.tail);
    const QStringView oldBody = bodyOf(tail);
    const qsizetype start = oldBody.data() - tail.data();
    return parts.head % styleElementText(css) % tail.first(start) % body %
           tail.sliced(start + oldBody.size());
}
