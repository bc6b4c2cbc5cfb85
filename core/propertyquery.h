// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/propertytypes.h"
#include "host/netlist/proplist.h"

#include <QByteArrayView>
#include <QMap>
#include <QString>
#include <QStringList>

struct COMPONENT;

/// The names of properties that every part has: the value, and the pseudo-properties for where it is placed
/// and what the component is called.
[[nodiscard]] QString valueProperty();
[[nodiscard]] QString placedProperty();
[[nodiscard]] QString nameProperty();
/// The name of the property that says that a part is not fitted.
[[nodiscard]] QString notFittedProperty();

/// The pseudo-properties with the names that people see.
[[nodiscard]] QMap<QString, QString> pseudoPropertyNames();
/// The properties that are offered for every design.
[[nodiscard]] QStringList standardPropertyNames();

/// One property, prepared for being asked of many parts; see Part::property(). Serves until the definitions
/// or the number format change.
class PropertyQuery final
{
public:
    /// Without types stored values are not converted for display.
    PropertyQuery(const QString &name, const PropertyTypes *types);

    [[nodiscard]] const QString &name() const { return m_name; }

    /// The text for a part of the design; `value` is the part's value, without a component all else is empty.
    [[nodiscard]] QString text(const COMPONENT *component, const QString &value) const;

    /// The same without the conversion for display.
    [[nodiscard]] QString storedText(const COMPONENT *component, const QString &value) const;

    /// The host text that text() is made from, for any property but the value: equal host texts of one
    /// property give equal texts.
    [[nodiscard]] QByteArrayView hostText(const COMPONENT *component) const;

private:
    enum class Source
    {
        Value,
        Placement,
        ComponentName,
        Stored
    };

    [[nodiscard]] static Source sourceOf(const QString &name);

    QString m_name;
    Source m_source;
    PROPNAME m_stored;
    DisplayConversion m_display;
};
