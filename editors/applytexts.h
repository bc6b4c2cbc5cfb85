// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;
struct ApplyResult;

/// Tells the user what came of applying pending edits: the result with what stayed pending; when nothing was
/// written, a warning with all reasons, which the result itself cuts.
void tellApplied(QWidget *parent, const ApplyResult &result);
/// Names what stayed pending although the others were written.
[[nodiscard]] QString keptText(const ApplyResult &result);
