// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class BOMPartsDatabase;
class DesignSession;

/// The account of a design in words.
struct DesignCheck
{
    struct Sum
    {
        QString name;
        QString text;
        /// The number that the text begins with; nothing where it is none.
        std::optional<qsizetype> count = {};
        /// The components that are counted, where the text names them.
        QStringList references = {};

        bool operator==(const Sum &) const = default;
    };

    QList<Sum> sums;
    /// What the user must decide on, one sentence each.
    QStringList findings;
    /// What looks like a mistake but may be on purpose, one sentence each.
    QStringList notices;
};

/// Checks the open design, whose parts the database holds; every property of `required` must be there and not
/// empty on every part of the bill.
[[nodiscard]] DesignCheck checkDesign(const DesignSession &session, const BOMPartsDatabase &database,
                                      const QStringList &required);
