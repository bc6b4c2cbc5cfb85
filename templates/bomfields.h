// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// One column of a report.
struct BOMField
{
    /// Width in characters of an ASCII column, and in percent of a hand-set HTML column, where none is given.
    static constexpr int DefaultAsciiWidth = 16;
    static constexpr int DefaultManualWidth = 12;

    /// Column heading; the key of the field, compared with case.
    QString fieldName;
    /// Component property that fills the column.
    QString propertyName;
    QString prefix;
    QString suffix;
    /// Prefix and suffix also stand around an empty value.
    bool applyToEmpty = false;
    /// The column has sub-totals and totals.
    bool generateTotals = false;
    bool enableLinks = false;
    /// Decimal places of totals and of the values of numeric properties.
    int precision = 0;
    /// Most characters of a value, 0 for no limit.
    int fieldWidth = 0;
    /// Kept with the field; reports do not look at it.
    int fieldLines = 0;
    int asciiWidth = DefaultAsciiWidth;
    int manualWidth = DefaultManualWidth;

    bool operator==(const BOMField &other) const = default;

    /// The field under the names of its members.
    [[nodiscard]] QVariantMap toVariantMap() const;

    /// Missing keys read as empty, false or 0, the two widths as their defaults: old documents lack them.
    [[nodiscard]] static BOMField fromVariantMap(const QVariantMap &map);
};

/// The columns of a report in their order, each known by its field name. Names are compared with case.
/// Every name in the order has a record; a record that setOrder() left out stays stored, out of the order,
/// until it is removed, added again or named by a later setOrder().
class BOMFields final
{
    Q_DECLARE_TR_FUNCTIONS(BOMFields)

public:
    /// Appends a field. False, with nothing changed, when the order holds its name already.
    bool add(const BOMField &field);

    /// Replaces the field of the same name where it stands, or appends it.
    void set(const BOMField &field);

    /// Forgets a field; an unknown name is no error.
    void remove(const QString &name);

    /// Puts the columns into the given order. Names without a record and repeated names are skipped, columns
    /// that are not named drop out.
    void setOrder(const QStringList &names);

    void clear();

    /// Value, Stock Code and Unit Cost.
    void setDefaults();

    /// The record of a name, an empty one when there is none.
    [[nodiscard]] BOMField get(const QString &name) const { return m_records.value(name); }

    /// Whether the order holds the name.
    [[nodiscard]] bool contains(const QString &name) const { return m_ordered.contains(name); }

    [[nodiscard]] const QStringList &names() const { return m_order; }
    [[nodiscard]] QList<BOMField> fields() const;
    [[nodiscard]] qsizetype size() const { return m_order.size(); }
    [[nodiscard]] bool isEmpty() const { return m_order.isEmpty(); }

    /// Same columns in the same order; records out of the order do not count.
    bool operator==(const BOMFields &other) const { return fields() == other.fields(); }

private:
    QHash<QString, BOMField> m_records;
    QStringList m_order;
    QSet<QString> m_ordered;
};
