// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The references in reference order, runs shortened: "R1-R3,R5".
[[nodiscard]] QString referenceText(const QStringList &references);
