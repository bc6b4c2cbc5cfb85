// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/program.h"

int main(int argc, char *argv[])
{
    return runProgram(argc, argv);
}
