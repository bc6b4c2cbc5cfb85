// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

/// The same path for all names of one design: those of its project and its schematic, and links to them.
[[nodiscard]] QString designOf(const QString &file);

/// Says to other windows, which are other processes, that a design is open in this one.
class DesignClaim final
{
public:
    /// Claims a design, by any of its names. False when another window, or
    /// another object, has it. True also where no claims can be made, for want of room for instance.
    [[nodiscard]] bool take(const QString &file);
    [[nodiscard]] bool holds(const QString &file) const;

private:
    std::unique_ptr<QLockFile> m_lock;
    QString m_path;
};
