// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomfields.h"

#include "templates/clampedint.h"

namespace {
int widthOf(const QVariantMap &map, const QString &key, int missing)
{
    const auto found = map.constFind(key);
    return found == map.constEnd() ? missing : clampedInt(*found);
}
} // namespace

QVariantMap BOMField::toVariantMap() const
{
    return {
        {QStringLiteral("fieldName"), fieldName},
        {QStringLiteral("propertyName"), propertyName},
        {QStringLiteral("prefix"), prefix},
        {QStringLiteral("suffix"), suffix},
        {QStringLiteral("applyToEmpty"), applyToEmpty},
        {QStringLiteral("generateTotals"), generateTotals},
        {QStringLiteral("enableLinks"), enableLinks},
        {QStringLiteral("precision"), precision},
        {QStringLiteral("fieldWidth"), fieldWidth},
        {QStringLiteral("fieldLines"), fieldLines},
        {QStringLiteral("asciiWidth"), asciiWidth},
        {QStringLiteral("manualWidth"), manualWidth},
    };
}

BOMField BOMField::fromVariantMap(const QVariantMap &map)
{
    BOMField field;
    field.fieldName = map.value(QStringLiteral("fieldName")).toString();
    field.propertyName = map.value(QStringLiteral("propertyName")).toString();
    field.prefix = map.value(QStringLiteral("prefix")).toString();
    field.suffix = map.value(QStringLiteral("suffix")).toString();
    field.applyToEmpty = map.value(QStringLiteral("applyToEmpty")).toBool();
    field.generateTotals = map.value(QStringLiteral("generateTotals")).toBool();
    field.enableLinks = map.value(QStringLiteral("enableLinks")).toBool();
    field.precision = clampedInt(map.value(QStringLiteral("precision")));
    field.fieldWidth = clampedInt(map.value(QStringLiteral("fieldWidth")));
    field.fieldLines = clampedInt(map.value(QStringLiteral("fieldLines")));
    field.asciiWidth = widthOf(map, QStringLiteral("asciiWidth"), DefaultAsciiWidth);
    field.manualWidth = widthOf(map, QStringLiteral("manualWidth"), DefaultManualWidth);
    return field;
}

bool BOMFields::add(const BOMField &field)
{
    if (contains(field.fieldName))
        return false;
    m_order.append(field.fieldName);
    m_ordered.insert(field.fieldName);
    m_records.insert(field.fieldName, field);
    return true;
}

void BOMFields::set(const BOMField &field)
{
    if (!add(field))
        m_records.insert(field.fieldName, field);
}

void BOMFields::remove(const QString &name)
{
    // `name` may be an element of the order: the order goes last.
    m_records.remove(name);
    if (m_ordered.remove(name))
        m_order.removeOne(name);
}

void BOMFields::setOrder(const QStringList &names)
{
    // `names` may be this object's own order.
    QStringList order;
    QSet<QString> ordered;
    for (const QString &name : names) {
        if (!m_records.contains(name) || ordered.contains(name))
            continue;
        order.append(name);
        ordered.insert(name);
    }
    m_order = order;
    m_ordered = ordered;
}

void BOMFields::clear()
{
    m_records.clear();
    m_order.clear();
    m_ordered.clear();
}

void BOMFields::setDefaults()
{
    clear();

    BOMField value;
    //: Stands in reports, which have one language on all machines: leave it as it is.
    value.fieldName = tr("Value");
    value.propertyName = QStringLiteral("VALUE");
    add(value);

    BOMField stockCode;
    //: Stands in reports, which have one language on all machines: leave it as it is.
    stockCode.fieldName = tr("Stock Code");
    stockCode.propertyName = QStringLiteral("CODE");
    stockCode.enableLinks = true;
    add(stockCode);

    BOMField unitCost;
    //: Stands in reports, which have one language on all machines: leave it as it is.
    unitCost.fieldName = tr("Unit Cost");
    unitCost.propertyName = QStringLiteral("COST");
    unitCost.generateTotals = true;
    unitCost.precision = 2;
    add(unitCost);
}

QList<BOMField> BOMFields::fields() const
{
    QList<BOMField> list;
    list.reserve(m_order.size());
    for (const QString &name : m_order)
        list.append(m_records.value(name));
    return list;
}
