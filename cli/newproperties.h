// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

class OpenDesign;

/// Whether the design knows the name, in any letter case, or another one of the same meaning: some part,
/// BOM-only or not, may have such a property.
[[nodiscard]] bool hasProperty(OpenDesign &design, const QString &name);

/// The names under which parts have a property.
[[nodiscard]] QStringList propertyNames(OpenDesign &design);

/// Whether an edit would bring a name into the design that had none such, and that the program itself gives
/// no meaning, as it does DNP.
[[nodiscard]] bool isNewProperty(OpenDesign &design, const QString &name);

/// The names of properties which parts have and which may be meant by a name that no part has: those that
/// differ from it in blanks and signs, or by one letter that is added, missing, another one or changed places
/// with the next. A digit makes another name: MPN2 is none for MPN.
[[nodiscard]] QStringList similarProperties(OpenDesign &design, const QString &name);

/// The properties that edits bring into a design that had none of their names.
class NewProperties final
{
public:
    /// The design must outlive the object and be as it was before the edits.
    explicit NewProperties(OpenDesign &design)
        : m_design(design)
    {
    }

    /// Tells that a part gets a property. What the program itself gives a meaning, such as DNP, is not new.
    void add(const QString &reference, const QString &property);

    /// "new property MPN on 3 parts", a line each, in the order of the names.
    [[nodiscard]] QString lines() const;
    /// Those that may be another property misspelt, a sentence each.
    [[nodiscard]] QStringList notices() const;

private:
    struct Property
    {
        QString name;
        bool isNew = false;
        QSet<QString> references;
    };

    OpenDesign &m_design;
    /// By the folded name.
    QMap<QString, Property> m_properties;
};
