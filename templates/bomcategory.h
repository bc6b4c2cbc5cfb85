// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// One category of a report: the parts whose reference prefix it names.
struct BOMCategory
{
    QString heading;
    /// Reference prefixes that select the parts.
    QStringList references;
    /// Takes every part that no other category takes; its prefixes are not used.
    bool isMiscCategory = false;

    bool operator==(const BOMCategory &other) const = default;

    /// The category under the names of its members.
    [[nodiscard]] QVariantMap toVariantMap() const;

    /// Missing keys read as empty or false.
    [[nodiscard]] static BOMCategory fromVariantMap(const QVariantMap &map);

    /// The seven categories of a new template, the miscellaneous one last.
    [[nodiscard]] static QList<BOMCategory> defaults();
};
