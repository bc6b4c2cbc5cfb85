// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/designarguments.h"

/// bom fields: what the property names of a design mean.
class FieldsCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    DesignArguments m_design;
    bool m_json = false;
};
