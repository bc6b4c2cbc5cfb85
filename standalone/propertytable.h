// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "host/netlist/netlist.h"
#include "host/netlist/proplist.h"
#include "standalone/designfields.h"
#include "standalone/dnpchoice.h"

#include <QByteArrayList>

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// What the components of one design answer when asked for a property by name: the stored properties, and two
/// that stand for flags. BOMSKIP is there when a flag or the not-fitted choice leaves the component out; DNP
/// is "1" on a component that is not fitted and absent otherwise, whatever is stored under that name. Where a
/// component has nothing filled under the name itself, what it has under a name of the same meaning answers.
class PropertyTable final
{
public:
    /// The design must outlive the table. Without names of fields a property is found by its own name only.
    explicit PropertyTable(const designs::Design &design,
                           std::shared_ptr<const FieldNames> fieldNames = nullptr);
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

    [[nodiscard]] const DesignFields &fields() const { return m_fields; }
    /// The names that a property is found by besides its own, the best first; mostly there are none.
    [[nodiscard]] const std::vector<designs::NameId> &otherNames(const QByteArray &name) const;
    /// The name under which a component has the property that is asked for; nothing where it has none.
    [[nodiscard]] std::optional<designs::NameId> usedName(const designs::Component &component,
                                                          const QByteArray &name) const;
    /// All names under which a component has it filled, the one that is read first.
    [[nodiscard]] std::vector<designs::NameId> filledNames(const designs::Component &component,
                                                           const QByteArray &name) const;
    /// The name under which an edit of the property is to be stored: the one that the component has, else
    /// the one that most components have.
    [[nodiscard]] QByteArray writtenName(const designs::Component &component, const QByteArray &name) const;

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
        /// Names of the same meaning, for components that have nothing filled under these.
        std::vector<designs::NameId> others;
        /// Their places in that order, sorted by name: a hostile design has more of them than a part has
        /// properties.
        std::vector<std::pair<designs::NameId, std::size_t>> ranks;
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
    [[nodiscard]] std::optional<designs::NameId> usedName(const designs::Component &component,
                                                          const Lookup &lookup) const;
    /// The place of a name among the others; nothing when it is none of them.
    [[nodiscard]] static std::optional<std::size_t> rankOf(const Lookup &lookup, designs::NameId name);

    const designs::Design &m_design;
    DesignFields m_fields;
    const quint64 m_stamp;
    DnpChoice m_dnpChoice = DnpChoice::Exclude;
    /// Entries never move: a PROPNAME remembers the address of its own.
    mutable std::unordered_map<std::string, Lookup> m_lookups;
    mutable std::unordered_map<std::string, std::vector<designs::NameId>> m_prefixLookups;
    const Lookup *m_skip = nullptr;
    const Lookup *m_notFitted = nullptr;
};
