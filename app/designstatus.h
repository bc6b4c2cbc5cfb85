// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class DesignSession;

/// What the status bar says about the design that is open.
struct DesignStatus
{
    /// How many parts are listed, with those that are no components of the design, and how many components
    /// are not and why.
    QString account;
    QString accountTip;
    /// What the readers noticed, references that occur more than once or have no number, texts with
    /// variables, notes that cannot be read, and what is wrong with the user's property definitions; one line
    /// each.
    QStringList warnings;
};

/// `listed` is what the module counts, which alone knows the BOM-only parts; without it the components count.
[[nodiscard]] DesignStatus designStatus(const DesignSession &session, std::optional<qsizetype> listed);
