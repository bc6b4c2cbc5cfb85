// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

/// What tr() is for the messages of this folder. Descriptions of commands and options are marked instead,
/// with QT_TRANSLATE_NOOP("Help", ...): translateHelp() translates all of them together.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};
