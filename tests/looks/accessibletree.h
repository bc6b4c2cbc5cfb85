// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// What of a visible window a screen reader cannot tell its user: controls without a name or label,
/// neighbours that sound alike, columns without headings, windows inside of windows, and widgets that the
/// keyboard reaches but the tree lacks. One sentence each.
[[nodiscard]] QStringList accessibilityFlawsOf(QWidget *window);
