// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"

#include <string>

/// bom undo: takes back what the last command wrote into a design.
class UndoCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    std::string m_design;
};
