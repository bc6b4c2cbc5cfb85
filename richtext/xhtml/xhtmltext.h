// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/xhtmlstyle.h"

#include <QString>

class QTextBlock;

/// The text of a block with its formats, links, images and line breaks.
[[nodiscard]] QString xhtmlText(const QTextBlock &block, const UsualLook &usual,
                                const Surroundings &surroundings);
