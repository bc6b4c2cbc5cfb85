// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/designarguments.h"

#include <vector>

/// bom check: accounts for every symbol of the design and lists what needs a decision.
class CheckCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    DesignArguments m_design;
    std::vector<std::string> m_required;
    bool m_json = false;
};
