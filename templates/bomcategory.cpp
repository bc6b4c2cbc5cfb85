// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomcategory.h"

#include <QCoreApplication>

QVariantMap BOMCategory::toVariantMap() const
{
    return {
        {QStringLiteral("heading"), heading},
        {QStringLiteral("references"), references},
        {QStringLiteral("isMiscCategory"), isMiscCategory},
    };
}

BOMCategory BOMCategory::fromVariantMap(const QVariantMap &map)
{
    BOMCategory category;
    category.heading = map.value(QStringLiteral("heading")).toString();
    category.references = map.value(QStringLiteral("references")).toStringList();
    category.isMiscCategory = map.value(QStringLiteral("isMiscCategory")).toBool();
    return category;
}

QList<BOMCategory> BOMCategory::defaults()
{
    const auto tr = [](const char *heading) { return QCoreApplication::translate("BOMCategory", heading); };
    return {
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Modules")), {QStringLiteral("M")}, false},
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Capacitors")), {QStringLiteral("C")}, false},
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Resistors")), {QStringLiteral("R")}, false},
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Integrated Circuits")), {QStringLiteral("U")}, false},
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Transistors")), {QStringLiteral("Q")}, false},
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Diodes")), {QStringLiteral("D")}, false},
        {tr(QT_TRANSLATE_NOOP("BOMCategory", "Miscellaneous")), {QStringLiteral("*")}, true},
    };
}
