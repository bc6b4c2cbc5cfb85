// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

/// Says to other windows, which are other processes, that a design is open in this one.
class DesignClaim final
{
public:
    /// Claims a design, of which a project and its schematic are two names. False when another window, or
    /// another object, has it. True also where no claims can be made, for want of room for instance.
    [[nodiscard]] bool take(const QString &file);
    [[nodiscard]] bool holds(const QString &file) const;

private:
    std::unique_ptr<QLockFile> m_lock;
    QString m_path;
};
