// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/referencetext.h"

#include "core/referenceformat.h"

#include <limits>

QString referenceText(const QStringList &references)
{
    ReferenceStyle style;
    style.width = std::numeric_limits<int>::max();
    return formatReferences(references, style);
}
