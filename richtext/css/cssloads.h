// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace css {

/// A style sheet, or the declarations of a style attribute, without what would fetch something or run:
/// @import is left out, url(), image-set() and their kin become "none". Images in data: addresses stay, they
/// bring all they need. A text without such things is not copied.
[[nodiscard]] QString withoutLoads(const QString &text);

/// A value with numbers of at most 9999, and with 0 for those without end that Qt knows ("inf", "nan").
/// Escapes of letters and digits are resolved. A value without such things is not copied.
[[nodiscard]] QString withSensibleNumbers(const QString &text);

/// Declarations, or a value, in which no length is larger than so many pixels or points; an em counts as 16
/// of them, and percentages stop at 1000. A text without larger lengths is not copied.
[[nodiscard]] QString withLengthsUpTo(const QString &declarations, double largest);

} // namespace css
