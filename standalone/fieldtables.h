// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/fieldnames.h"

#include <QString>
#include <QStringList>

#include <memory>

/// The names of fields that count for a design.
struct LoadedFieldNames
{
    std::shared_ptr<const FieldNames> names;
    /// What is wrong with the user's tables, "FILE:LINE: text" each.
    QStringList problems;
};

/// The table beside a design, `bomfields.txt` behind its base name. It need not exist.
[[nodiscard]] QString fieldTableBeside(const QString &designFile);

/// Reads the table that comes with the program, the user's (see userFieldTable()) and the one beside the
/// design; each extends those before.
[[nodiscard]] LoadedFieldNames loadFieldNames(const QString &designFile);
