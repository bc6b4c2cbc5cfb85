// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/designarguments.h"
#include "cli/localeoption.h"

#include <CLI/App.hpp>

/// The part of a command line that says how a design is changed.
struct WriteOptions
{
    DesignArguments design;
    LocaleOption locale;
    bool isDryRun = false;
    bool hasNoBackup = false;

    /// Adds the options; DESIGN has to be added before.
    void addTo(CLI::App &command);
};
