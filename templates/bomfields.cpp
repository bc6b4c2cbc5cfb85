// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomfields.h"

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
    value.fieldName = tr("Value");
    value.propertyName = QStringLiteral("VALUE");
    add(value);

    BOMField stockCode;
    stockCode.fieldName = tr("Stock Code");
    stockCode.propertyName = QStringLiteral("CODE");
    stockCode.enableLinks = true;
    add(stockCode);

    BOMField unitCost;
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
