// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/templaterepair.h"

#include "core/propertyquery.h"
#include "templates/bomtemplate.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// `wanted`, or with a number behind it when that name is taken.
template<typename IsTaken>
QString freeName(const QString &wanted, IsTaken isTaken)
{
    QString name = wanted;
    for (int number = 2; isTaken(name); ++number) {
        name = wanted + u' ' + QString::number(number);
    }
    return name;
}

bool hasValueField(const BOMFields &fields)
{
    const QList<BOMField> list = fields.fields();
    return std::any_of(list.begin(), list.end(),
                       [](const BOMField &field) { return field.propertyName == valueProperty(); });
}

void addValueField(BOMTemplate &settings)
{
    const BOMFields old = settings.fields();
    BOMField value;
    value.fieldName = freeName(QCoreApplication::translate("BOMPartsDatabase", "Value"),
                               [&old](const QString &name) { return old.contains(name); });
    value.propertyName = valueProperty();
    BOMFields fields;
    fields.add(value);
    for (const BOMField &field : old.fields()) {
        fields.add(field);
    }
    settings.setFields(fields);
}

bool hasMiscCategory(const QList<BOMCategory> &categories)
{
    return std::any_of(categories.begin(), categories.end(),
                       [](const BOMCategory &category) { return category.isMiscCategory; });
}

void addMiscCategory(BOMTemplate &settings)
{
    QList<BOMCategory> categories = settings.categories();
    QSet<QString> headings;
    for (const BOMCategory &category : std::as_const(categories)) {
        headings.insert(category.heading);
    }
    BOMCategory misc;
    misc.heading = freeName(QCoreApplication::translate("BOMPartsDatabase", "Miscellaneous"),
                            [&headings](const QString &name) { return headings.contains(name); });
    misc.references = QStringList{QStringLiteral("*")};
    misc.isMiscCategory = true;
    categories.append(misc);
    settings.setCategories(categories);
}

} // namespace

QStringList repairTemplate(BOMTemplate &settings)
{
    QStringList repairs;
    if (!hasValueField(settings.fields())) {
        addValueField(settings);
        repairs << QCoreApplication::translate(
            "BOMPartsDatabase", "The template has no field for VALUE; one was added as the first column.");
    }
    if (!hasMiscCategory(settings.categories())) {
        addMiscCategory(settings);
        repairs << QCoreApplication::translate(
            "BOMPartsDatabase", "The template has no miscellaneous category; one was added as the last.");
    }
    return repairs;
}
