// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cellcontext.h"

#include <QPalette>

namespace {

QFont derived(QFont font, bool isItalic, bool isUnderlined)
{
    font.setItalic(isItalic);
    font.setUnderline(isUnderlined);
    return font;
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

} // namespace

CellLook::CellLook(const QPalette &palette, const QFont &font)
    // The dark colours have the same hue; RGB (10, 10, 220) cannot be read on a dark background.
    : blue(isDark(palette) ? QColor(130, 165, 255) : QColor(10, 10, 220))
    , grey(isDark(palette) ? QColor(165, 165, 165) : QColor(85, 85, 85))
    , missing(isDark(palette) ? QColor(84, 64, 24) : QColor(255, 243, 214))
    , link(derived(font, false, true))
    , bomOnly(derived(font, true, false))
    , bomOnlyLink(derived(font, true, true))
{
}
