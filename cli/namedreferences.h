// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// The references that a text such as "R1,R4-R7" names. What is a reference of the design as it stands is
/// never taken apart; otherwise commas part references, and what stands between them is read as a cell of a
/// part list. Nothing, with the reason in `error`, when that cannot be understood. References need not be
/// known.
[[nodiscard]] QStringList
namedReferences(const QString &text, const std::function<bool(const QString &)> &isKnown, QString *error);
