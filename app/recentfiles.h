// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The designs that were opened last, in any window, kept in the host's settings.
class RecentFiles final
{
public:
    static constexpr int Most = 10;

    /// The last one first.
    [[nodiscard]] static QStringList list();
    /// A design that is known by another of its names changes the name.
    static void add(const QString &path);
    /// Of the one that was added last, also when the list was cleared; empty before the first one.
    [[nodiscard]] static QString lastFolder();
    static void remove(const QString &path);
    static void clear();
};
