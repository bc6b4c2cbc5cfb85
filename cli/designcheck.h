// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class OpenDesign;

/// The account of a design.
struct DesignCheck
{
    struct Sum
    {
        QString name;
        QString text;
    };

    QList<Sum> account;
    /// What the user must decide on, one sentence each.
    QStringList findings;
    /// What may be meant so, one sentence each.
    QStringList notices;

    /// All of it as text for people.
    [[nodiscard]] QString text() const;
};

/// Checks the open design; every property of `required` must be there and not empty on every part of the
/// bill.
[[nodiscard]] DesignCheck checkDesign(OpenDesign &design, const QStringList &required);
