// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace designs {

/// A text that names exactly these references in this order, in the style of a cell that named them among
/// others: its separator, and ranges of three or more where it had ranges. Nothing when they cannot stand in
/// one cell, as a bare number behind a numbered reference cannot.
[[nodiscard]] std::optional<std::string> referenceText(const std::vector<std::string_view> &references,
                                                       std::string_view styleCell,
                                                       std::size_t styleReferences);

} // namespace designs
