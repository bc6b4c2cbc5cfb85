// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>

#include <QString>

/// Puts what --help prints of the program and all its commands into the user's language.
void translateHelp(CLI::App &program);

/// What the parser of the command line says, in the user's language.
[[nodiscard]] QString parserMessage(const CLI::Error &error);
