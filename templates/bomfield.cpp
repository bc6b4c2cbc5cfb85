// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomfield.h"

namespace {
int widthOf(const QVariantMap &map, const QString &key, int missing)
{
    const auto found = map.constFind(key);
    return found == map.constEnd() ? missing : found->toInt();
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
    field.precision = map.value(QStringLiteral("precision")).toInt();
    field.fieldWidth = map.value(QStringLiteral("fieldWidth")).toInt();
    field.fieldLines = map.value(QStringLiteral("fieldLines")).toInt();
    field.asciiWidth = widthOf(map, QStringLiteral("asciiWidth"), DefaultAsciiWidth);
    field.manualWidth = widthOf(map, QStringLiteral("manualWidth"), DefaultManualWidth);
    return field;
}
