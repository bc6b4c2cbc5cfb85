// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/propertytypes.h"
#include "host/netlist/proplist.h"

#include <QByteArrayView>
#include <QString>

class Part;

/// The names of properties that are no stored ones.
[[nodiscard]] QString valueProperty();
[[nodiscard]] QString placedProperty();
[[nodiscard]] QString nameProperty();

/// One property, prepared for being asked of many parts. Serves until the definitions or the number format
/// change.
class PropertyQuery final
{
public:
    /// Without types stored values are not converted for display.
    PropertyQuery(const QString &name, const PropertyTypes *types);

    [[nodiscard]] const QString &name() const { return m_name; }

    /// What Part::property() answers.
    [[nodiscard]] QString text(const Part &part) const;

    /// The same for a part of the design.
    [[nodiscard]] QString placedText(const Part &part) const;

    /// The host text that text() is made from, for a part of the design and any property but the value: equal
    /// host texts of one property give equal texts.
    [[nodiscard]] QByteArrayView hostText(const Part &part) const;

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
