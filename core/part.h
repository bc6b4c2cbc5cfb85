// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

class CategoryGroups;
class Part;
class PropertyQuery;
class PropertyTypes;
struct COMPONENT;

/// What parts ask of the database that holds them.
class PartDatabase
{
public:
    /// The types by which stored values are converted for display.
    [[nodiscard]] virtual const PropertyTypes &propertyTypes() const = 0;
    /// Null when no part has that reference.
    [[nodiscard]] virtual Part *part(const QString &reference) const = 0;
    /// Under which of the names of a BOM-only part it has what is asked for under another one of the same
    /// meaning; empty when under none.
    [[nodiscard]] virtual QString otherName(const QString &asked,
                                            const QMap<QString, QString> &properties) const
    {
        Q_UNUSED(asked)
        Q_UNUSED(properties)
        return {};
    }

protected:
    PartDatabase() = default;
    PartDatabase(const PartDatabase &) = default;
    PartDatabase &operator=(const PartDatabase &) = default;
    ~PartDatabase() = default;
};

/// What the parts database works out once about a part, so that ordering and grouping compare numbers.
struct PartKey
{
    /// Number of the reference's prefix and of the value among those of the database.
    quint32 prefix = 0;
    quint32 value = 0;
    /// Number at the end of the reference, 0 when it has none.
    int number = 0;
};

/// A component of the design as the bill of materials sees it.
class Part
{
public:
    /// `component` belongs to the netlist and may be null; `database` may be null, stored values are then not
    /// converted for display.
    Part(const COMPONENT *component, const PartDatabase *database, const QString &reference,
         const QString &value);
    Part(const Part &) = delete;
    Part &operator=(const Part &) = delete;
    virtual ~Part();

    /// Whether the part exists in the bill of materials only.
    [[nodiscard]] virtual bool isBOMPart() const;

    /// The value of a property as people see it, empty when the part does not have it. "VALUE" is the value,
    /// ".Placed" the side of the board or "Not placed", ".Name" the component's own name.
    [[nodiscard]] virtual QString property(const QString &name) const;
    /// The same for a property that is asked of many parts.
    [[nodiscard]] QString property(const PropertyQuery &query) const;
    /// Its text as it is stored, without the conversion for display.
    [[nodiscard]] QString storedProperty(const PropertyQuery &query) const;

    [[nodiscard]] const COMPONENT *component() const { return m_component; }
    [[nodiscard]] const PartDatabase *database() const { return m_database; }
    [[nodiscard]] const QString &reference() const { return m_reference; }
    [[nodiscard]] const QString &value() const { return m_value; }
    [[nodiscard]] const PartKey &key() const { return m_key; }
    /// Whether the part is listed, marked, and does not count: it is not fitted and the host wants such parts
    /// beside the others.
    [[nodiscard]] bool isNotFitted() const { return m_isNotFitted; }

private:
    friend class PartStore;
    friend class CategoryGroups;

    const COMPONENT *m_component = nullptr;
    const PartDatabase *m_database = nullptr;
    QString m_reference;
    QString m_value;
    PartKey m_key;
    /// The groups that hold the part, by which they know it without a search; null for none.
    const CategoryGroups *m_category = nullptr;
    bool m_isNotFitted = false;
};
