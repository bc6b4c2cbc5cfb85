// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/propertyquery.h"
#include "templates/bomfields.h"

/// A field of the template with what is needed to fill its column.
struct ReportColumn
{
    BOMField field;
    PropertyQuery property;
    /// Whether the property holds numbers.
    bool isNumeric = false;
};
