// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/loadeddesign.h"

#include <QStringList>

#include <optional>
#include <span>
#include <vector>

/// A meaning of properties that matters to who buys parts.
struct BuyerField
{
    enum class Kind
    {
        /// Who makes or sells it.
        Firm,
        /// Of the maker, a supplier or the house.
        Number,
        Description,
        Rating,
        Price
    };

    /// See FieldMeaning.
    const char *key;
    Kind kind;
    /// The usual heading; null for what a design calls it.
    const char *title;
};

/// In the order in which people expect the columns.
[[nodiscard]] std::span<const BuyerField> buyerFields();

/// The names of the design that mean it for certain. None where names are taken as they are.
[[nodiscard]] std::vector<designs::NameId> namesOf(const LoadedDesign &design, const BuyerField &field);
/// Those that most likely mean it, but not for certain.
[[nodiscard]] std::vector<designs::NameId> likelyNamesOf(const LoadedDesign &design, const BuyerField &field);

/// The property to ask for to have what the parts have under any of these names of the field, of which there
/// must be one: the usual heading where it is such a name itself, else the name that most parts have.
[[nodiscard]] QString propertyOf(const LoadedDesign &design, const BuyerField &field,
                                 const std::vector<designs::NameId> &names);

/// The names of properties in the definitions of BOM-only parts, each once.
[[nodiscard]] QStringList definedNames(const LoadedDesign &design);
/// The property to ask for to have what BOM-only parts have of the field; nothing where none of the names
/// means it for certain.
[[nodiscard]] std::optional<QString> definedProperty(const LoadedDesign &design, const BuyerField &field,
                                                     const QStringList &definedNames);

/// Properties by which parts of one line may be different parts.
struct TellingProperties
{
    /// A part without it differs from one that has it.
    QStringList always;
    /// A part without it goes with any.
    QStringList whereFilled;
};

/// The footprint and the numbers that the design has; its ratings, and further names of numbers and ratings.
[[nodiscard]] TellingProperties tellingProperties(const LoadedDesign &design);
