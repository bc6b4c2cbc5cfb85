// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console.h"

#include <CLI/App.hpp>

/// One command of the program.
class Command
{
public:
    Command() = default;
    Command(const Command &) = delete;
    Command &operator=(const Command &) = delete;
    virtual ~Command() = default;

    /// Adds the command with its options; the values are there when run() is called.
    virtual void addTo(CLI::App &program) = 0;

    /// Whether the command line chose this command.
    [[nodiscard]] bool isChosen() const { return m_app && m_app->parsed(); }

    /// Whether it paints, for which Qt needs a platform.
    [[nodiscard]] virtual bool paints() const { return false; }

    /// Runs the command. Everything that the user must know has been written when it returns.
    [[nodiscard]] virtual ExitStatus run() = 0;

protected:
    CLI::App *m_app = nullptr;
};
