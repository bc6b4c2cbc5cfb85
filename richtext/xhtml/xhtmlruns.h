// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/xhtmlstyle.h"

#include <QString>

class QTextBlock;

/// The text of a block: runs of one format each, links, images and line breaks.
[[nodiscard]] QString xhtmlRuns(const QTextBlock &block, const UsualLook &usual,
                                const Surroundings &surroundings);
