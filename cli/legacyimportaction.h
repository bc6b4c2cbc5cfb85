// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/exitstatus.h"

#include <QString>

class TemplateStore;

/// Makes a template of a legacy BOM script of a file: of the only one without a script's name, and under the
/// script's name without one for the template. Says what the file lacks and which properties have no
/// definition.
[[nodiscard]] ExitStatus importLegacyScript(TemplateStore &store, const QString &path, const QString &script,
                                            const QString &name);
