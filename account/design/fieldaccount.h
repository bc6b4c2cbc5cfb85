// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/fieldnames.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

class LoadedDesign;

/// A part that has different texts under names of one meaning.
struct FieldDisagreement
{
    struct Text
    {
        QString name;
        QString text;
    };

    QString reference;
    /// The first is the one that is read.
    QList<Text> texts;
};

/// A property name with the parts that have it filled.
struct FieldUse
{
    QString name;
    qsizetype parts = 0;
    /// The first of them with its text.
    QString exampleReference;
    QString exampleText;
};

/// How the parts of the bill answer for one property that is asked for.
struct FieldReading
{
    QString asked;
    /// The other names of the same meaning that it is read under.
    QList<FieldUse> others;
    QList<FieldDisagreement> disagreements;
    /// Names that may mean the same, on parts that have nothing else that answers.
    QList<FieldUse> proposed;
};

/// For each property, once in any letter case.
[[nodiscard]] QList<FieldReading> fieldReadings(const LoadedDesign &design, const QStringList &asked);

/// Names that say "do not fit" on parts of the bill. DNP and BOMSKIP are none of them: they leave parts out.
[[nodiscard]] QList<FieldUse> unheededNotFitted(const LoadedDesign &design);

/// All names of a design by their meanings; parts that are in no bill count as well.
struct FieldOverview
{
    struct Meaning
    {
        FieldMeaning meaning;
        /// The best first, without those that are filled nowhere.
        QList<FieldUse> names;
        /// The parts that have one of them filled.
        qsizetype parts = 0;
        QList<FieldDisagreement> disagreements;
    };
    struct Proposal
    {
        FieldUse name;
        QList<FieldMeaning> meanings;
    };

    QList<Meaning> meanings;
    QList<Proposal> proposals;
    /// Names without a known meaning.
    QList<FieldUse> others;
};

/// Of a design whose names are not taken as they are.
[[nodiscard]] FieldOverview fieldOverview(const LoadedDesign &design);
