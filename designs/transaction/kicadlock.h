// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/problem.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace designs {

/// Who has a file open in KiCad, by the lock file beside it: "is open in KiCad (anna on host)". Nothing when
/// nobody has.
[[nodiscard]] std::optional<QString> openElsewhere(const QString &path);

/// Who has a sheet open in KiCad as part of a schematic above it: KiCad marks only the schematic that it was
/// asked to open, but holds the sheets below it in memory, too. Looks at the marked schematics in the folders
/// of these files and in the two folders above each, and follows what their texts name as sheet files.
[[nodiscard]] std::optional<Problem> openFromAbove(const QStringList &files);

} // namespace designs
