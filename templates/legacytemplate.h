// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomtemplate.h"
#include "templates/legacyscripts.h"

#include <QString>
#include <QStringList>

class TemplateList;

/// The values of a line, the text behind its "=". A part in double quotes is one value, empty or with commas.
[[nodiscard]] QStringList legacyScriptValues(const QString &text);

/// Categories and fields as a script says, everything else at its default; without a name. Lines with other
/// keys, or another number of values, are skipped.
[[nodiscard]] BOMTemplate legacyTemplate(const LegacyScript &script);

/// The name under which a legacy script is offered for import, "-copy" behind it when there is one of that
/// name.
[[nodiscard]] QString proposedTemplateName(const QString &scriptName, const TemplateList &templates);

/// The properties of the template's fields that have no definition, each once, in column order. Those that
/// every part has without one, VALUE and the pseudo-properties with a full stop, are not among them. None
/// when the definitions cannot be read.
[[nodiscard]] QStringList undefinedProperties(const BOMTemplate &settings);
