// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartdefinition.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class BOMPart;

/// A property that defines BOM-only parts, by its name and text.
struct DefinitionProperty
{
    QString name;
    QString text;

    bool operator==(const DefinitionProperty &) const = default;
};

/// A definition that makes no parts, or less than it says.
struct DefinitionProblem
{
    QString parentReference;
    QString property;
    DefinitionFault fault;
};

/// The BOM-only parts of one placed part.
class DefinedParts final
{
public:
    /// The properties that define them, and those that were written since the design was read.
    [[nodiscard]] const QStringList &names() const { return m_names; }
    void addName(const QString &name);
    /// A name that is not taken: BOMPART with a number above that of the definitions.
    [[nodiscard]] QString freeName() const;

    /// In the order in which they were made. They belong to the database.
    [[nodiscard]] const QList<BOMPart *> &parts() const { return m_parts; }
    void add(BOMPart *part) { m_parts.append(part); }
    void remove(BOMPart *part) { m_parts.removeOne(part); }
    /// Remembers parts that are not held, because others have their references, so that they are written.
    void addRepeated(const BOMPartDefinition &definition, int count);
    /// Remembers a definition that makes no parts, so that it is written.
    void addUnmade(const QString &text) { m_unmade.append(text); }

    /// The definitions BOMPART0, BOMPART1, ... of all the parts as they are now; those that make no parts
    /// follow as they are. Nothing when a text cannot be written.
    [[nodiscard]] std::optional<QList<DefinitionProperty>> rewritten() const;

private:
    QStringList m_names;
    QSet<QString> m_nameSet;
    QList<BOMPart *> m_parts;
    QList<BOMPartDefinition> m_repeated;
    QStringList m_unmade;
};
