// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"

#include "core/bomlinks.h"
#include "core/designinfo.h"

#include <algorithm>

// Links and notes.

void BOMPartsDatabase::setLinks(const QString &reference, const QString &text)
{
    takeLinks(reference, readBOMLinks(text));
}

void BOMPartsDatabase::takeLinks(const QString &reference, const QMap<QString, QString> &links)
{
    if (!links.isEmpty()) {
        m_links.insert(reference, links);
    }
}

QString BOMPartsDatabase::link(const QString &reference, const QString &propertyName) const
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

bool BOMPartsDatabase::setNotes(const QString &text)
{
    if (text == m_notes) {
        return true;
    }
    if (!setDesignNotes(text, &m_notesError)) {
        return false;
    }
    m_notes = text;
    notify();
    return true;
}
