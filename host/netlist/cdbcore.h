// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// Where a component stands on the board.
class CDBLAYOUT
{
public:
    /// The side as host text, "Top" or "Bottom".
    [[nodiscard]] QByteArrayView name() const { return m_name; }
    void setname(const QByteArray &name) { m_name = name; }

private:
    QByteArray m_name;
};

/// A record of the component database.
class CDBPART
{
public:
    /// The placement, null while the component is not placed.
    [[nodiscard]] const CDBLAYOUT *layout() const { return m_layout; }
    void setlayout(const CDBLAYOUT *layout) { m_layout = layout; }

private:
    const CDBLAYOUT *m_layout = nullptr;
};

/// The host's component database.
class CDBCORE
{
public:
    CDBCORE() = default;
    CDBCORE(const CDBCORE &) = delete;
    CDBCORE &operator=(const CDBCORE &) = delete;
    virtual ~CDBCORE() = default;

    /// The record of a component by its identifier; null for an unknown one. Owned by the database.
    [[nodiscard]] virtual const CDBPART *getpart(quint64 identifier) = 0;
};

/// The installed database, null when the host has none.
[[nodiscard]] CDBCORE *getcdb();

/// Installs the database; it stays owned by the caller.
void setcdb(CDBCORE *database);
