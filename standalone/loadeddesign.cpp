// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/loadeddesign.h"

namespace {

/// An identifier has the design's stamp in its upper bits and the component's number, counted from 1, in
/// these lower ones, so that the identifier of a record that outlived its design is not taken for one of the
/// next design.
constexpr int indexBits = 32;

QByteArrayView view(std::string_view text)
{
    return {text.data(), qsizetype(text.size())};
}

} // namespace

LoadedDesign::Record::Record(const PropertyTable &table, const designs::Component &component,
                             quint64 identifier)
    : m_published{view(component.reference), view(component.value), view(component.name), identifier, nullptr}
    , m_table(&table)
    , m_component(&component)
{
}

const COMPONENT *LoadedDesign::Record::publish()
{
    m_published.properties = this;
    return &m_published;
}

std::optional<QByteArrayView> LoadedDesign::Record::find(const PROPNAME &name) const
{
    return m_table->find(*m_component, name);
}

std::vector<PROPERTY> LoadedDesign::Record::startingwith(const PROPPREFIX &prefix) const
{
    return m_table->startingWith(*m_component, prefix);
}

std::vector<PROPERTY> LoadedDesign::Record::all() const
{
    return m_table->all(*m_component);
}

LoadedDesign::LoadedDesign(std::unique_ptr<const designs::Design> design, DnpChoice choice,
                           std::shared_ptr<const FieldNames> fieldNames)
    : m_design(std::move(design))
    , m_properties(*m_design, std::move(fieldNames))
{
    m_properties.setDnpChoice(choice);
    const auto &components = m_design->components();
    m_records.reserve(components.size());
    quint64 identifier = m_properties.stamp() << indexBits;
    for (const designs::Component &component : components) {
        m_records.emplace_back(m_properties, component, ++identifier);
    }
    m_components.reserve(components.size());
    for (Record &record : m_records) {
        m_components.push_back(record.publish());
    }
}

const ReferenceIndex &LoadedDesign::references() const
{
    if (!m_references) {
        m_references.emplace(*m_design);
    }
    return *m_references;
}

const designs::Component *LoadedDesign::component(quint64 identifier) const
{
    const quint64 number = identifier & ((quint64(1) << indexBits) - 1);
    if (identifier >> indexBits != m_properties.stamp() || number == 0 || number > m_records.size()) {
        return nullptr;
    }
    return &m_design->components()[number - 1];
}
