// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The references that a text names as a cell of a part list does: "R1-R4", "C17/18". Nothing, with the
/// reason in `error`, when it names none or cannot be understood.
[[nodiscard]] std::optional<QStringList> readReferences(const QString &text, QString *error);
