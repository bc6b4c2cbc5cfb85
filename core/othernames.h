// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>

#include <functional>
#include <optional>

/// Names of the same meaning among those of BOM-only parts. The host is asked once about each pair of names.
class OtherNames final
{
public:
    /// See NETLIST::samemeaning.
    using Rank = std::function<std::optional<std::size_t>(const QByteArray &asked, const QByteArray &other)>;

    /// Null for names that have one meaning each.
    void setRank(const Rank &rank);
    /// The best name of a property that is not empty; empty when there is none.
    [[nodiscard]] QString find(const QString &asked, const QMap<QString, QString> &properties) const;

private:
    [[nodiscard]] std::optional<std::size_t> rankOf(const QString &asked, const QString &other) const;

    Rank m_rank;
    mutable QHash<QString, QHash<QString, std::optional<std::size_t>>> m_known;
};
