// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomtemplate.h"
#include "templates/templatelist.h"

#include <optional>

/// Sets the folders in which templates are looked for; problems with templates go to standard error.
void prepareTemplates();

/// Whether the user has a template "Default" of their own.
[[nodiscard]] bool hasOwnDefaultTemplate();

/// Says that there is no template of that name, and which one may be meant.
void reportUnknownTemplate(const QString &name, const TemplateList &templates);

/// The template that a command line names: the file when the text ends in ".bomt" or has a folder in it, else
/// the user's or shipped template of that name, ignoring case where the exact one is missing. Nothing, after
/// a message, when there is none or it cannot be read.
[[nodiscard]] std::optional<BOMTemplate> readTemplate(const QString &nameOrFile);
