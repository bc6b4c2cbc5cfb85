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
    return {
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Modules"), {QStringLiteral("M")}, false},
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Capacitors"), {QStringLiteral("C")}, false},
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Resistors"), {QStringLiteral("R")}, false},
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Integrated Circuits"), {QStringLiteral("U")}, false},
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Transistors"), {QStringLiteral("Q")}, false},
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Diodes"), {QStringLiteral("D")}, false},
        //: Stands in reports, which have one language on all machines: leave it as it is.
        {QCoreApplication::translate("BOMCategory", "Miscellaneous"), {QStringLiteral("*")}, true},
    };
}
