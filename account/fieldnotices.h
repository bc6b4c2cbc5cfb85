// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "account/design/fieldaccount.h"
#include "core/joinedlines.h"

class BOMPartsDatabase;

/// How the parts of the bill, BOM-only ones too, answer for the columns of the template and for further
/// properties.
[[nodiscard]] QList<FieldReading> billReadings(const LoadedDesign &design, const BOMPartsDatabase &database,
                                               const QStringList &further = {});

/// What is read under other names, and what is not read because its meaning is not certain: a sentence each.
[[nodiscard]] QStringList otherNameNotices(const QList<FieldReading> &readings);

/// The parts on which names of one meaning disagree, a sentence for each property.
[[nodiscard]] QStringList disagreementNotices(const QList<FieldReading> &readings);

/// The names that say "do not fit" on parts of the bill, a sentence for each.
[[nodiscard]] QStringList unheededNotFittedNotices(const LoadedDesign &design);

/// The lines that join parts which differ in what no column shows: the footprint, a number, a rating.
[[nodiscard]] QList<JoinedLine> billJoinedLines(const LoadedDesign &design, const BOMPartsDatabase &database);
/// How many lines there are, with the first of them; empty for none.
[[nodiscard]] QStringList joinedLineNotices(const QList<JoinedLine> &joined);

/// The columns that are empty on all parts, with the names that the design has for them; one sentence or
/// none.
[[nodiscard]] QStringList emptyColumnNotices(const LoadedDesign &design, const BOMPartsDatabase &database);

/// "R1 ("A" under manf# is read, "B" under PartNo is not), ..." of the first few parts.
[[nodiscard]] QString disagreementText(const QList<FieldDisagreement> &disagreements);
