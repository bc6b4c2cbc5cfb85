// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdef.h"

#include <QString>
#include <QStringList>

/// Whether a text is a number of the locale in use where the type asks for one; true for other types.
[[nodiscard]] bool isNumberOf(PropType type, const QString &text);

/// The number without the marks between its thousands, as far as the locale in use has them; another text as
/// it is.
[[nodiscard]] QString withoutThousands(const QString &text);

/// How to write a decimal number that could be two: in "1.234" the mark stands between thousands in the
/// locale in use, but elsewhere in front of decimals, so that "1234" or "1,234" may be meant. Empty for a
/// text that is clear: it has a decimal mark, too, or several marks between thousands, or is no number.
[[nodiscard]] QStringList clearForms(const QString &text);

/// What the values of a type are, for a message.
[[nodiscard]] QString typeText(PropType type);
