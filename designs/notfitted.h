// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/component.h"

#include <string_view>
#include <vector>

namespace designs {

/// Whether a property DNP with this text says "do not populate": anything but empty, 0, no, n, false or "~".
[[nodiscard]] bool saysNotFitted(std::string_view text);

/// Marks the components that a property named DNP, in any letter case, says are not fitted. A mark that is
/// there already stays.
void markNotFittedByProperty(std::vector<Component> *components, const PropertyNames &names);

} // namespace designs
