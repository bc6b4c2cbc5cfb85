// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class TemplateStore;

/// The name under which a legacy script is offered for import, "-copy" behind it when the store has it.
[[nodiscard]] QString proposedTemplateName(const QString &scriptName, const TemplateStore &store);
