// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/part.h"

#include "core/bompartsdatabase.h"
#include "core/propertyquery.h"

Part::Part(const COMPONENT *component, const BOMPartsDatabase *database, const QString &reference,
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
    return PropertyQuery(name, m_database ? &m_database->propertyTypes() : nullptr).placedText(*this);
}
