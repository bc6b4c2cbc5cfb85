// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/loadeddesign.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The components that the bill of a design lists, gone through once.
class ListedParts final
{
public:
    /// The design must outlive the object.
    explicit ListedParts(const LoadedDesign &design);

    [[nodiscard]] const LoadedDesign &design() const { return m_design; }
    [[nodiscard]] const std::vector<const designs::Component *> &components() const { return m_components; }

    /// How a property is filled, under one of its names.
    struct Use
    {
        qsizetype parts = 0;
        /// Characters of the longest text.
        qsizetype longest = 0;
    };
    [[nodiscard]] const Use &use(designs::NameId id) const { return m_uses[id]; }
    [[nodiscard]] const Use &values() const { return m_values; }
    /// What stands before the digits of the references, sorted.
    [[nodiscard]] QStringList prefixes() const;

private:
    const LoadedDesign &m_design;
    std::vector<const designs::Component *> m_components;
    std::vector<Use> m_uses;
    Use m_values;
};

/// What stands before the first digit of a reference.
[[nodiscard]] std::string_view referencePrefix(std::string_view reference);
