// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdef.h"

#include <QLocale>
#include <QString>

#include <optional>

/// The way back of DisplayConversion: from what people see, or type, to what the design holds.
class StoredConversion final
{
public:
    /// Without a type texts stay as they are.
    explicit StoredConversion(std::optional<PropType> type);

    /// Whether the text is one that the type has: one of its two states, as shown or as stored and in any
    /// letter case, or a number in the user's format. In a whole number points and commas only group digits.
    /// An empty text always is.
    [[nodiscard]] bool accepts(const QString &shown) const;

    /// The stored text. One that is not accepted gives the lower state of a type with two, and stays in a
    /// number.
    [[nodiscard]] QString operator()(const QString &shown) const;

private:
    [[nodiscard]] bool isWholeNumber(const QString &shown) const;

    std::optional<PropType> m_type;
    QLocale m_locale;
};

class PropertyTypes;

/// What an assignment of a text that people see or type stores; removalText() stays as it is.
[[nodiscard]] QString storedAssignment(const PropertyTypes &types, const QString &property,
                                       const QString &shown);
