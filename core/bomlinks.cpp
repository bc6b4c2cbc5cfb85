// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomlinks.h"

#include <QStringList>
#include <QUrl>

QString bomLinksProperty()
{
    return QStringLiteral("BOMLINKS");
}

QMap<QString, QString> readBOMLinks(const QString &text)
{
    QMap<QString, QString> links;
    for (const QStringView item : QStringView(text).split(u',')) {
        if (const qsizetype sign = item.indexOf(u'='); sign > 0) {
            links.insert(item.first(sign).toString(),
                         QUrl::fromPercentEncoding(item.sliced(sign + 1).toUtf8()));
        }
    }
    return links;
}

std::optional<QString> bomLinksText(const QMap<QString, QString> &links)
{
    QStringList items;
    for (auto it = links.cbegin(); it != links.cend(); ++it) {
        if (it.value().isEmpty()) {
            continue;
        }
        if (it.key().isEmpty() || it.key().contains(u',') || it.key().contains(u'=')) {
            return std::nullopt;
        }
        items.append(it.key() + u'=' + QString::fromLatin1(QUrl::toPercentEncoding(it.value())));
    }
    return items.join(u',');
}
