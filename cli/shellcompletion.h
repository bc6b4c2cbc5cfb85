// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct CommandDescription;

/// What bash reads to complete the command line of the program: a script that is sourced, or lies in
/// share/bash-completion/completions. Names of templates, variants and services come from the program itself.
[[nodiscard]] QString bashCompletion(const CommandDescription &program);

/// The same for zsh, as the function file _bom in a folder of $fpath.
[[nodiscard]] QString zshCompletion(const CommandDescription &program);

/// The same for fish, as bom.fish in a folder of completions.
[[nodiscard]] QString fishCompletion(const CommandDescription &program);
