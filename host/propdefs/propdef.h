// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The type of a property definition, numbered as the host numbers it.
enum class PropType
{
    YesNo = 1,
    HighLow = 2,
    Boolean = 3,
    TrueFalse = 4,
    String = 5,
    Text = 6,
    Int = 7,
    Float = 8,
};

/// What the host knows about a property: its type, a text that people read, and which values it may have.
struct PROPDEF
{
    QString name;
    PropType type = PropType::String;
    QString description;
    /// At least two where there are any, none of them empty or with a quote or "|" in it; only for type
    /// String.
    QStringList keywords = {};

    /// The values that the property may have beside none; empty when any text will do.
    [[nodiscard]] const QStringList &getkwdprops() const { return keywords; }

    bool operator==(const PROPDEF &) const = default;
};

/// The property definitions by name. Names are found whatever their letter case; the first of two equal ones
/// counts.
class DIDX
{
public:
    /// False when the name is there already.
    bool add(const PROPDEF &definition);
    /// Null for an unknown name.
    [[nodiscard]] const PROPDEF *find(const QString &name) const;
    [[nodiscard]] const QList<PROPDEF> &definitions() const { return m_definitions; }
    void clear();

private:
    QList<PROPDEF> m_definitions;
    QHash<QString, qsizetype> m_index;
};

/// The keyword of a type in a definitions file, empty for a type that has none (3 and 6).
[[nodiscard]] QString propTypeKeyword(PropType type);
