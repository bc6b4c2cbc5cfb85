// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class BOMTemplate;

/// The properties of the template's fields that have no definition, each once, in column order. Those that
/// every part has without one, VALUE and the pseudo-properties with a full stop, are not among them. None
/// when the definitions cannot be read.
[[nodiscard]] QStringList undefinedProperties(const BOMTemplate &settings);
