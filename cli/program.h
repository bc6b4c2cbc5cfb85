// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

/// Runs the program `bom` and gives its exit status.
[[nodiscard]] int runProgram(int argc, char *argv[]);
