// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace designs {

/// Who has a file open in KiCad, by the lock file beside it: "is open in KiCad (anna on host)". Nothing when
/// nobody has.
[[nodiscard]] std::optional<QString> openElsewhere(const QString &path);

} // namespace designs
