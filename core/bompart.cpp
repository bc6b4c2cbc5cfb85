// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompart.h"

#include "core/propertyquery.h"
#include "core/reference.h"

BOMPart::BOMPart(const PartDatabase *database, const QString &reference, const QString &value,
                 const QString &parentReference, const QMap<QString, QString> &properties)
    : Part(nullptr, database, reference, value)
    , m_parentReference(parentReference)
    , m_prefix(splitReference(reference).prefix.toString())
{
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        m_properties.insert(it.key().toUpper(), it.value());
    }
}

BOMPart::BOMPart(const PartDatabase *database, const QString &reference, const QString &parentReference,
                 const BOMPartDefinition &definition)
    : Part(nullptr, database, reference, definition.value)
    , m_properties(definition.properties)
    , m_parentReference(parentReference)
    , m_prefix(definition.prefix)
{
}

bool BOMPart::isBOMPart() const
{
    return true;
}

QString BOMPart::property(const QString &name) const
{
    if (name.compare(valueProperty(), Qt::CaseInsensitive) == 0) {
        return value();
    }
    if ((name == placedProperty() && database()) ||
        (m_isNotFittedWithParent && name.compare(notFittedProperty(), Qt::CaseInsensitive) == 0)) {
        return propertyOfParent(name);
    }
    return m_properties.value(storedName(name));
}

QString BOMPart::propertyOfParent(const QString &name) const
{
    const Part *parent = database()->part(m_parentReference);
    return parent && !parent->isBOMPart() ? parent->property(name) : QString();
}

QString BOMPart::storedName(const QString &name) const
{
    const QString own = name.toUpper();
    const QString text = m_properties.value(own).trimmed();
    const bool isFilled = !text.isEmpty() && text != u'~';
    const QString other = m_properties.isEmpty() || !database() || isFilled
                              ? QString()
                              : database()->otherName(name, m_properties);
    return other.isEmpty() ? own : other;
}
