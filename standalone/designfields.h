// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "standalone/fieldnames.h"

#include <QByteArray>

#include <memory>
#include <vector>

/// What the property names of one design mean. Worked out for each name once, at the first question.
class DesignFields final
{
public:
    /// The design must outlive the object. Without names every property has its own name only.
    DesignFields(const designs::Design &design, std::shared_ptr<const FieldNames> names);

    /// Null where names are taken as they are.
    [[nodiscard]] const FieldNames *names() const { return m_names.get(); }
    [[nodiscard]] const FieldSense &senseOf(designs::NameId id) const;

    /// The names of the design that mean the same as a name that is asked for, the best first, without those
    /// that are found by the name itself.
    [[nodiscard]] std::vector<designs::NameId> sameMeaning(const QByteArray &asked,
                                                           const std::vector<designs::NameId> &found) const;
    /// The names of the design that may mean the same and are not read for it, in the order of their first
    /// sight.
    [[nodiscard]] std::vector<designs::NameId> proposed(const QByteArray &asked) const;
    /// For a part of which only names are known; see FieldNames::rank().
    [[nodiscard]] std::optional<std::size_t> rank(const QByteArray &asked, const QByteArray &other) const;
    /// The name that most components have, the first of those with equal counts.
    [[nodiscard]] designs::NameId commonest(const std::vector<designs::NameId> &ids) const;

    /// Whether a text says something: not blank, and not the "~" that KiCad has for nothing.
    [[nodiscard]] static bool isFilled(std::string_view text);

private:
    [[nodiscard]] const std::vector<KnownName> &known() const;

    const designs::Design &m_design;
    std::shared_ptr<const FieldNames> m_names;
    /// By the number of the name; empty before the first question.
    mutable std::vector<KnownName> m_known;
    /// How many components have a name filled, likewise.
    mutable std::vector<quint32> m_counts;
};
