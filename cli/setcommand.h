// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/writeoptions.h"

#include <QList>
#include <QString>

#include <optional>
#include <string>
#include <vector>

/// bom set: gives properties of parts new values.
class SetCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    struct Assignment
    {
        QString property;
        QString value;
    };
    /// Nothing, after a message, when one of them is none or a property is named twice.
    [[nodiscard]] std::optional<QList<Assignment>> assignments() const;

    WriteOptions m_options;
    std::string m_references;
    std::vector<std::string> m_assignments;
};
