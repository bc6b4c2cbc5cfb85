// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/fieldnames.h"

/// The title of a meaning in the user's language, where it is one of the table that comes with the program;
/// titles of the user's own tables stay as they are.
[[nodiscard]] QString shownTitle(const FieldMeaning &meaning);
