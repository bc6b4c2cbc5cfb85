// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/celllook.h"

#include <xlsxwriter.h>

namespace {

constexpr lxw_color_t greyFill = 0xE4E8EE;
constexpr lxw_color_t paleFill = 0xF3F5F8;
constexpr lxw_color_t linkColour = 0x0563C1;
constexpr double titleSize = 14;

} // namespace

void applyLook(lxw_format *format, CellLook look)
{
    format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
    if (isWrapped(look)) {
        format_set_text_wrap(format);
    }
    switch (look) {
    case CellLook::Text:
        format_set_align(format, LXW_ALIGN_LEFT);
        break;
    case CellLook::Title:
        format_set_font_size(format, titleSize);
        [[fallthrough]];
    case CellLook::Label:
        format_set_bold(format);
        break;
    case CellLook::Heading:
        format_set_border(format, LXW_BORDER_THIN);
        format_set_bg_color(format, greyFill);
        format_set_bold(format);
        break;
    case CellLook::Section:
        format_set_bg_color(format, paleFill);
        format_set_bold(format);
        break;
    case CellLook::Quantity:
        format_set_align(format, LXW_ALIGN_CENTER);
        break;
    case CellLook::Link:
        format_set_font_color(format, linkColour);
        format_set_underline(format, LXW_UNDERLINE_SINGLE);
        break;
    case CellLook::Cell:
        break;
    case CellLook::SubTotal:
        format_set_top(format, LXW_BORDER_THIN);
        format_set_italic(format);
        break;
    case CellLook::Total:
        format_set_top(format, LXW_BORDER_DOUBLE);
        format_set_bold(format);
        break;
    }
}
