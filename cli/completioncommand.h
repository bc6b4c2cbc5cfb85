// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"

#include <string>

/// bom completion: prints what lets a shell complete commands and options, or the manual page. For the
/// installation, so that help does not list it.
class CompletionCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    const CLI::App *m_program = nullptr;
    std::string m_form;
};
