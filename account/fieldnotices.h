// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "account/design/fieldaccount.h"

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

/// "R1 ("A" under manf# is read, "B" under PartNo is not), ..." of the first few parts.
[[nodiscard]] QString disagreementText(const QList<FieldDisagreement> &disagreements);
