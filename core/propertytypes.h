// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdef.h"

#include <QString>
#include <QStringList>

#include <optional>

/// What the host's definitions say about the types of properties.
class PropertyTypes final
{
public:
    /// Reads the definitions anew. When that fails there are none, and a debug line says why.
    void load();

    /// Nothing for a property without a definition.
    [[nodiscard]] std::optional<PropType> type(const QString &name) const;

    /// The texts that the definition lists; empty where any will do.
    [[nodiscard]] QStringList keywords(const QString &name) const;

    /// Whether the values are numbers: a whole or a decimal one.
    [[nodiscard]] bool isNumeric(const QString &name) const;

    /// Grows with every load.
    [[nodiscard]] quint64 generation() const { return m_generation; }

private:
    DIDX m_definitions;
    quint64 m_generation = 0;
};

/// Whether values of the type are stored as "1" and "0".
[[nodiscard]] bool hasTwoStates(PropType type);

/// Turns stored values of one property into what people see: Yes, High, True or their opposites for the types
/// stored as "1" and "0", the user's decimal point in decimal numbers. A text that is no number stays.
class DisplayConversion final
{
public:
    /// Without a type values stay as they are.
    explicit DisplayConversion(std::optional<PropType> type);

    [[nodiscard]] QString operator()(const QString &stored) const;

private:
    std::optional<PropType> m_type;
    QString m_decimalPoint;
};
