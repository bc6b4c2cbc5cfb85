// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/designwriter.h"

#include <QList>
#include <QString>

#include <optional>

/// Changes for people to read, a line each in the order of the references: reference, property, values and
/// place. Equal changes are one line with all their references and the first of their places; the numbers of
/// changes, parts and files follow.
[[nodiscard]] QString changeLines(QList<CDBCHANGE> changes);
[[nodiscard]] QString changeSummary(const QList<CDBCHANGE> &changes, qsizetype files, bool isDryRun);

/// What is changed in a BOM-only part, and in words how.
struct BomPartChange
{
    QString reference;
    QString text;
};

/// The same, equal texts in one line.
[[nodiscard]] QString changeLines(const QList<BomPartChange> &changes);

/// The text in quotes for people to read; `otherwise` where there is none.
[[nodiscard]] QString quotedText(const std::optional<QString> &text, const QString &otherwise);
