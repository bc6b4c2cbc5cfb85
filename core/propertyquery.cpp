// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/propertyquery.h"

#include "host/framework/hosttext.h"
#include "host/netlist/cdbcore.h"
#include "host/netlist/component.h"

#include <QCoreApplication>

namespace {

QByteArrayView placement(const COMPONENT &component)
{
    CDBCORE *database = getcdb();
    const CDBPART *record = database ? database->getpart(component.identifier) : nullptr;
    return record && record->layout() ? record->layout()->name() : QByteArrayView("Not placed");
}

} // namespace

QString valueProperty()
{
    return QStringLiteral("VALUE");
}

QString placedProperty()
{
    return QStringLiteral(".Placed");
}

QString notFittedProperty()
{
    return QStringLiteral("DNP");
}

QString nameProperty()
{
    return QStringLiteral(".Name");
}

QMap<QString, QString> pseudoPropertyNames()
{
    return {{placedProperty(), QCoreApplication::translate("BOMPartsDatabase", "Placed")},
            {nameProperty(), QCoreApplication::translate("BOMPartsDatabase", "Name")}};
}

QStringList standardPropertyNames()
{
    return pseudoPropertyNames().keys() << valueProperty() << QStringLiteral("PACKAGE");
}

PropertyQuery::PropertyQuery(const QString &name, const PropertyTypes *types)
    : m_name(name)
    , m_source(sourceOf(name))
    , m_stored(toHostText(name))
    , m_display(types && m_source == Source::Stored ? types->type(name) : std::nullopt)
{
}

QString PropertyQuery::text(const COMPONENT *component, const QString &value) const
{
    return m_source == Source::Value ? value : m_display(fromHostText(hostText(component)));
}

QString PropertyQuery::storedText(const COMPONENT *component, const QString &value) const
{
    return m_source == Source::Value ? value : fromHostText(hostText(component));
}

QByteArrayView PropertyQuery::hostText(const COMPONENT *component) const
{
    if (!component) {
        return {};
    }
    switch (m_source) {
    case Source::Placement:
        return placement(*component);
    case Source::ComponentName:
        return component->name;
    case Source::Stored:
        return component->properties ? component->properties->find(m_stored).value_or(QByteArrayView())
                                     : QByteArrayView();
    case Source::Value:
        break;
    }
    return {};
}

PropertyQuery::Source PropertyQuery::sourceOf(const QString &name)
{
    if (name == valueProperty()) {
        return Source::Value;
    }
    if (name == placedProperty()) {
        return Source::Placement;
    }
    return name == nameProperty() ? Source::ComponentName : Source::Stored;
}
