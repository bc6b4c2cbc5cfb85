// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/report/terminalreport.h"

#include <optional>

/// What the terminal can show that standard output goes to; nothing when it goes to a file or pipe. The width
/// is that of COLUMNS, else the terminal's own; there are no colours where NO_COLOR is set.
[[nodiscard]] std::optional<TerminalLook> outputTerminal();

/// Whether messages are read by somebody who waits.
[[nodiscard]] bool isErrorTerminal();
