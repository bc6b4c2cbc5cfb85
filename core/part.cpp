// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/part.h"

#include "core/propertyquery.h"

Part::Part(const COMPONENT *component, const PartDatabase *database, const QString &reference,
           const QString &value)
    : m_component(component)
    , m_database(database)
    , m_reference(reference)
    , m_value(value)
{
}

Part::~Part() = default;

bool Part::isBOMPart() const
{
    return false;
}

QString Part::property(const QString &name) const
{
    return PropertyQuery(name, m_database ? &m_database->propertyTypes() : nullptr)
        .text(m_component, m_value);
}

QString Part::property(const PropertyQuery &query) const
{
    return isBOMPart() ? property(query.name()) : query.text(m_component, m_value);
}

QString Part::storedProperty(const PropertyQuery &query) const
{
    return isBOMPart() ? property(query.name()) : query.storedText(m_component, m_value);
}
