// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomlinks.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>

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

void LinkTable::insert(const QString &reference, const QMap<QString, QString> &links)
{
    if (!links.isEmpty()) {
        m_links.insert(reference, links);
    }
}

QString LinkTable::link(const QString &reference, const QString &propertyName) const
{
    const auto links = m_links.constFind(reference);
    if (links == m_links.cend()) {
        return {};
    }
    if (const auto exact = links->constFind(propertyName); exact != links->cend()) {
        return *exact;
    }
    const auto found = std::find_if(links->keyBegin(), links->keyEnd(), [&](const QString &name) {
        return name.compare(propertyName, Qt::CaseInsensitive) == 0;
    });
    return found == links->keyEnd() ? QString() : *found.base();
}
