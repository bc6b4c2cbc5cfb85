// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace designs {

/// Whether the bytes are well-formed UTF-8 (RFC 3629).
[[nodiscard]] bool isUtf8(std::string_view text);

} // namespace designs
