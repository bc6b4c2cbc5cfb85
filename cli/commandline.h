// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console.h"

#include <CLI/App.hpp>

#include <QString>

#include <optional>
#include <vector>

/// Reads the command line into the options of the program. Nothing when a command is to be run; otherwise,
/// after help, version or a message, what the program returns.
[[nodiscard]] std::optional<ExitStatus> parseCommandLine(CLI::App &program, int argc, char *argv[]);

/// The commands below one, or below the program, that are no secret.
[[nodiscard]] std::vector<const CLI::App *> commandsOf(const CLI::App &app);

/// Says that there is no such command, and which one may be meant.
ExitStatus reportUnknownCommand(const CLI::App &parent, const QString &word);
