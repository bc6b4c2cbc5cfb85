// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdef.h"

#include <QString>

/// Whether a text is a number of the locale in use where the type asks for one; true for other types.
[[nodiscard]] bool isNumberOf(PropType type, const QString &text);

/// The number without the marks between its thousands, as far as the locale in use has them; another text as
/// it is.
[[nodiscard]] QString withoutThousands(const QString &text);

/// What the values of a type are, for a message.
[[nodiscard]] QString typeText(PropType type);
