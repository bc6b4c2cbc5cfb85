// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "host/netlist/netlist.h"
#include "host/netlist/proplist.h"
#include "standalone/dnpchoice.h"

#include <QByteArrayList>

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// What the components of one design answer when asked for a property by name: the stored properties, and two
/// that stand for flags. BOMSKIP is there when a flag or the not-fitted choice leaves the component out; DNP
/// is "1" on a component that is not fitted and absent otherwise, whatever is stored under that name.
class PropertyTable final
{
public:
    /// The design must outlive the table.
    explicit PropertyTable(const designs::Design &design);
    PropertyTable(const PropertyTable &) = delete;
    PropertyTable &operator=(const PropertyTable &) = delete;

    [[nodiscard]] std::optional<QByteArrayView> find(const designs::Component &component,
                                                     const PROPNAME &name) const;
    /// The stored properties whose names begin like that, in file order. Letter case counts.
    [[nodiscard]] std::vector<PROPERTY> startingWith(const designs::Component &component,
                                                     const PROPPREFIX &prefix) const;
    /// The properties of the component: as stored, in file order, the two flags last unless they are stored.
    [[nodiscard]] std::vector<PROPERTY> all(const designs::Component &component) const;
    /// Every name that occurs in the design, without the reference and the value.
    [[nodiscard]] QByteArrayList allNames() const;

    [[nodiscard]] DnpChoice dnpChoice() const { return m_dnpChoice; }
    void setDnpChoice(DnpChoice choice) { m_dnpChoice = choice; }
    /// Whether the not-fitted choice leaves the component out.
    [[nodiscard]] bool isLeftOutByChoice(const designs::Component &component) const;
    /// What a property DNP of this text and the choice make of a part that is no component.
    [[nodiscard]] FITTING fitting(QByteArrayView dnp) const;
    /// The property BOMSKIP as stored; the flags do not count.
    [[nodiscard]] bool hasStoredSkip(const designs::Component &component) const;

    /// A number that no other table of this process has.
    [[nodiscard]] quint64 stamp() const { return m_stamp; }

private:
    enum class Meaning
    {
        Stored,
        Skip,
        NotFitted
    };
    struct Lookup
    {
        std::vector<designs::NameId> candidates;
        Meaning meaning = Meaning::Stored;
        /// None of the candidates is the reference or the value.
        bool isPlain = true;
    };

    [[nodiscard]] bool isListedByChoice(bool isFitted) const;
    [[nodiscard]] const Lookup &lookup(const PROPNAME &name) const;
    [[nodiscard]] const Lookup &lookup(const QByteArray &name) const;
    /// The names of the design that begin like that.
    [[nodiscard]] const std::vector<designs::NameId> &lookup(const PROPPREFIX &prefix) const;
    [[nodiscard]] std::optional<QByteArrayView> stored(const designs::Component &component,
                                                       const Lookup &lookup) const;

    const designs::Design &m_design;
    const quint64 m_stamp;
    DnpChoice m_dnpChoice = DnpChoice::Exclude;
    /// Entries never move: a PROPNAME remembers the address of its own.
    mutable std::unordered_map<std::string, Lookup> m_lookups;
    mutable std::unordered_map<std::string, std::vector<designs::NameId>> m_prefixLookups;
    const Lookup *m_skip = nullptr;
    const Lookup *m_notFitted = nullptr;
};
