// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "host/netlist/component.h"
#include "standalone/propertytable.h"
#include "standalone/referenceindex.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

/// A design with the netlist records of its components, one each, in the design's order. The records stay
/// where they are while it lives.
class LoadedDesign final
{
public:
    /// Without names of fields a property is found by its own name only.
    LoadedDesign(std::unique_ptr<const designs::Design> design, DnpChoice choice,
                 std::shared_ptr<const FieldNames> fieldNames = nullptr);

    [[nodiscard]] const designs::Design &design() const { return *m_design; }
    [[nodiscard]] std::span<const COMPONENT *const> components() const { return m_components; }
    [[nodiscard]] const PropertyTable &properties() const { return m_properties; }
    [[nodiscard]] PropertyTable &properties() { return m_properties; }

    /// Made at the first request.
    [[nodiscard]] const ReferenceIndex &references() const;

    /// The component that a record's identifier stands for; null when the record is of another design.
    [[nodiscard]] const designs::Component *component(quint64 identifier) const;

private:
    class Record final : public PROPLIST
    {
    public:
        Record(const PropertyTable &table, const designs::Component &component, quint64 identifier);
        [[nodiscard]] const COMPONENT *publish();
        [[nodiscard]] std::optional<QByteArrayView> find(const PROPNAME &name) const override;
        [[nodiscard]] std::vector<PROPERTY> startingwith(const PROPPREFIX &prefix) const override;
        [[nodiscard]] std::vector<PROPERTY> all() const override;

    private:
        COMPONENT m_published;
        const PropertyTable *m_table;
        const designs::Component *m_component;
    };

    std::unique_ptr<const designs::Design> m_design;
    PropertyTable m_properties;
    std::vector<Record> m_records;
    std::vector<const COMPONENT *> m_components;
    mutable std::optional<ReferenceIndex> m_references;
};
