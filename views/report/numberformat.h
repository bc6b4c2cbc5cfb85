// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomfields.h"

#include <QString>

/// The number format with which a spreadsheet shows numbers of the field as the report does: decimal places,
/// prefix and suffix. Empty when there is none that every program understands.
[[nodiscard]] QString numberFormat(const BOMField &field);
