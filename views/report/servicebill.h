// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/report/spreadsheetreport.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class BOMPartsDatabase;
struct AssemblyService;

/// The parts of a design as an assembly service takes them: one row for parts that agree in all columns, in
/// the value, in the footprint with its library and in the properties that tell parts apart. Parts that are
/// not fitted have no rows.
struct ServiceBill
{
    /// Two rows whose columns agree, because their parts differ in what no column shows.
    struct AlikeRows
    {
        /// Of the first parts.
        QString reference;
        QString other;
        QString property;

        bool operator==(const AlikeRows &) const = default;
    };

    QStringList headings;
    /// Of columns that hold numbers.
    QList<bool> isNumber;
    /// In the order of their first designators.
    QList<QStringList> rows;
    /// The parts that lack the number that the service needs.
    QStringList withoutNumber;
    /// Designators that are one to the service.
    QList<QStringList> clashes;
    QList<AlikeRows> alike;
    QString title;
    QString author;
};

/// `apart` names properties that tell parts apart, besides those of the service.
[[nodiscard]] ServiceBill serviceBill(const BOMPartsDatabase &database, const AssemblyService &service,
                                      const QStringList &apart);

/// The bill as comma-separated text in UTF-8. Cells with commas or double quotes stand in double quotes,
/// those in them are doubled.
[[nodiscard]] QByteArray serviceCsv(const ServiceBill &bill);

/// The bill as one sheet that begins with the headings; texts are texts.
[[nodiscard]] SpreadsheetReport serviceSpreadsheet(const ServiceBill &bill);
