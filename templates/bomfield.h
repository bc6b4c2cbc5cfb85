// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
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
