// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What is recorded of a text that somebody entered, so that it fits on one line of a script: markup is made
/// well-formed, braces and double quotes go, and one backslash at the end; line feeds, carriage returns and
/// tabs become blanks. A text with "<" that is no markup, such as "<5 V", stays.
[[nodiscard]] QString cleanedValue(const QString &text);
