// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class QVariant;

/// The number that a value or its text stands for; one that is too large for an int is the largest or the
/// smallest int. What is no number is 0.
[[nodiscard]] int clampedInt(const QVariant &value);
