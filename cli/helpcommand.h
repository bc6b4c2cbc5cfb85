// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"

#include <string>
#include <vector>

/// bom help: prints what --help of the program or of a command prints.
class HelpCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    const CLI::App *m_program = nullptr;
    std::vector<std::string> m_words;
};
