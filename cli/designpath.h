// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// The file that is read for what a command line names: of a folder the one design in it, a KiCad project,
/// else a schematic, else a part list. A folder without any stays as it is, for the reader to refuse.
/// Nothing, after a message, when a folder has several. From now on messages name the files of the design as
/// the command line does, relative or not.
[[nodiscard]] std::optional<QString> designPath(const QString &named);
