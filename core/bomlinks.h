// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMap>
#include <QString>

#include <optional>

/// The property that holds the links of a part: NAME=URL items with commas between, URLs percent-encoded.
[[nodiscard]] QString bomLinksProperty();

/// The links by the name of the property that they belong to. Items without a name or "=" are passed over.
[[nodiscard]] QMap<QString, QString> readBOMLinks(const QString &text);

/// The same as text, in the order of the names; links without a URL are left out. Nothing when a name is
/// empty or holds "," or "=".
[[nodiscard]] std::optional<QString> bomLinksText(const QMap<QString, QString> &links);

/// The links of all parts, by reference.
class LinkTable final
{
public:
    /// Takes the links of a part in place of those it had; without any nothing changes.
    void insert(const QString &reference, const QMap<QString, QString> &links);
    void remove(const QString &reference) { m_links.remove(reference); }
    void clear() { m_links.clear(); }

    /// The URLs by property name.
    [[nodiscard]] QMap<QString, QString> links(const QString &reference) const
    {
        return m_links.value(reference);
    }
    /// The URL for one property, whatever the letter case of its name; empty when there is none.
    [[nodiscard]] QString link(const QString &reference, const QString &propertyName) const;

private:
    QHash<QString, QMap<QString, QString>> m_links;
};
