// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/savetemplate.h"

#include "templates/bomtemplate.h"
#include "templates/templatepaths.h"

#include <QDir>

bool saveTemplate(BOMTemplate &settings)
{
    // When this fails, so does the save, and it says so.
    QDir().mkpath(primaryTemplateFolder());
    return settings.save();
}
