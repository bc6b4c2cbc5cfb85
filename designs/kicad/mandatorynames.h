// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace designs::kicad {

/// Whether two names differ in nothing but the case of ASCII letters.
[[nodiscard]] bool sameAscii(std::string_view a, std::string_view b);

/// The fields that every symbol has are known whatever their letter case: their own spelling for these, any
/// other name as it is.
[[nodiscard]] std::string_view mandatoryName(std::string_view name);

/// Whether a symbol of that format version cannot do without the property: it may be empty, but not missing.
[[nodiscard]] bool isMandatory(std::string_view name, int formatVersion);

} // namespace designs::kicad
