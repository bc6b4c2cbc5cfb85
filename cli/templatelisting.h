// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class BOMTemplate;

/// The settings of a template for people to read: columns, categories, options; one a line.
[[nodiscard]] QString templateListing(const BOMTemplate &settings);
