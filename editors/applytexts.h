// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct ApplyResult;

/// What the user is told when pending edits were applied: the result, with all that kept them from being
/// written, which the result itself cuts.
[[nodiscard]] QString applyText(const ApplyResult &result);
/// Names what stayed pending although the others were written.
[[nodiscard]] QString keptText(const ApplyResult &result);
