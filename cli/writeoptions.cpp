// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/writeoptions.h"

void WriteOptions::addTo(CLI::App &command)
{
    command.add_flag("--dry-run", isDryRun, "Check everything and tell what would change; write nothing");
    command.add_flag("--no-backup", hasNoBackup,
                     "Keep no copy of the files as they are before; bom undo needs one");
    design.addReading(command);
    design.addListing(command);
    locale.addTo(command, "Read numbers as in this locale, such as de_DE; C without it");
}
