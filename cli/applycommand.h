// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/writeoptions.h"

#include <string>

/// bom apply: takes the values of an edited report into the design.
class ApplyCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    WriteOptions m_options;
    std::string m_edits;
};
