// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What a hierarchy of sheets may hold at most; larger ones are refused.
namespace designs::kicad::hierarchylimits {

/// Sheets below a root.
constexpr int depth = 100;
constexpr std::size_t uses = 100'000;
/// Symbols times the uses of their file.
constexpr std::size_t symbols = 10'000'000;

} // namespace designs::kicad::hierarchylimits
