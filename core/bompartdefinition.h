// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <optional>

/// The beginning of the names of all properties that define BOM-only parts.
[[nodiscard]] QString bomPartPropertyStart();

/// What one definition of BOM-only parts says.
struct BOMPartDefinition
{
    int count = 0;
    QString prefix;
    QString value;
    /// By upper-case name.
    QMap<QString, QString> properties;
};

/// The most parts that one definition may make, and the most of one design.
constexpr int mostPartsOfADefinition = 100'000;
constexpr int mostBOMParts = 1'000'000;

/// Why a definition makes no parts, or is not followed in all that it says.
enum class DefinitionFault
{
    TooFewFields,
    NoCount,
    TooManyParts,
    /// One of the further fields is not NAME=VALUE; the parts are made without it.
    NoAssignment,
    /// The design would have more than mostBOMParts.
    DesignIsFull,
    /// The references would need numbers that do not fit into 32 bits.
    NumbersEnd
};

struct ReadDefinition
{
    BOMPartDefinition definition;
    std::optional<DefinitionFault> fault;

    [[nodiscard]] bool makesParts() const
    {
        return definition.count > 0 && (!fault || *fault == DefinitionFault::NoAssignment);
    }
};

/// Reads "count,prefix,value,NAME=VALUE,...". With `,'` anywhere in it, fields may stand in single quotes, in
/// which \' is a quote; otherwise in double ones. A name BOMPART7= in front is passed over.
[[nodiscard]] ReadDefinition readBOMPartDefinition(const QString &text);

/// A text for a field in single quotes, its own quotes written as \'.
[[nodiscard]] QString escapedDefinitionText(QString text);

/// The definition that is written for new parts; prefix and value are escaped already. Nothing when a text
/// cannot be written: a prefix that ends in a backslash, any other that does and has a comma or quote in it.
[[nodiscard]] std::optional<QString> newBOMPartDefinition(int count, const QString &escapedPrefix,
                                                          const QString &escapedValue);

/// The definition that is written for parts that were changed, from the comma behind the count on. Nothing
/// when a text cannot be written.
[[nodiscard]] std::optional<QString> changedBOMPartDefinition(const BOMPartDefinition &definition);
