// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace css {

/// What is wrong with a style sheet and in which line, for the user; empty when nothing is.
[[nodiscard]] QString faultMessage(const QString &text);

} // namespace css
