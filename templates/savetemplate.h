// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class BOMTemplate;

/// Saves the template, making the primary template folder first where it is missing. False, after a message,
/// when that fails.
[[nodiscard]] bool saveTemplate(BOMTemplate &settings);
