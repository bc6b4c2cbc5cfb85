// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

/// What the program returns to the shell.
enum class ExitStatus
{
    Done = 0,
    /// The design has a problem that the user must decide on.
    DesignProblem = 1,
    WrongUsage = 2,
    UnreadableInput = 3,
    UnwritableOutput = 4
};
