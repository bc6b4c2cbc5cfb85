// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartdefinition.h"
#include "core/part.h"

#include <QMap>
#include <QString>

/// A part that is not in the design and belongs to a placed part: a screw, a heatsink, a label.
class BOMPart final : public Part
{
public:
    /// Names of properties are turned into upper case.
    BOMPart(const PartDatabase *database, const QString &reference, const QString &value,
            const QString &parentReference, const QMap<QString, QString> &properties = {});
    /// One of those that a definition makes. They share its texts.
    BOMPart(const PartDatabase *database, const QString &reference, const QString &parentReference,
            const BOMPartDefinition &definition);

    [[nodiscard]] bool isBOMPart() const override;

    /// The text as people entered it; names are compared ignoring case. ".Placed" is where the parent stands,
    /// empty when the database holds no placed part of that reference. "DNP" is what the parent says where
    /// the part is not fitted because of it.
    [[nodiscard]] QString property(const QString &name) const override;
    using Part::property;
    /// The upper-case name under which the part has a property, or would.
    [[nodiscard]] QString storedName(const QString &name) const;

    [[nodiscard]] const QString &parentReference() const { return m_parentReference; }

    /// What the definition puts in front of the number of the reference.
    [[nodiscard]] const QString &prefix() const { return m_prefix; }

    /// The own properties by upper-case name, without the value.
    [[nodiscard]] const QMap<QString, QString> &properties() const { return m_properties; }

private:
    friend class PartStore;

    /// What the placed part of that reference says; empty when the database holds none.
    [[nodiscard]] QString propertyOfParent(const QString &name) const;

    QMap<QString, QString> m_properties;
    QString m_parentReference;
    QString m_prefix;
    bool m_isNotFittedWithParent = false;
};
