// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class DesignSession;

/// What the status bar says about the design that is open.
struct DesignStatus
{
    /// How many components are listed, and how many are not and why.
    QString account;
    QString accountTip;
    /// What the readers noticed, references that occur more than once or have no number, texts with
    /// variables, and what is wrong with the user's property definitions; one line each.
    QStringList warnings;
};

[[nodiscard]] DesignStatus designStatus(const DesignSession &session);
