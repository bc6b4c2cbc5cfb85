// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomcategory.h"

/// The categories for references with these prefixes, under the usual headings, without those that stay
/// empty; the last one takes what no other does.
[[nodiscard]] QList<BOMCategory> prefixCategories(const QStringList &prefixes);
