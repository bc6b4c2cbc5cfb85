// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/mandatorynames.h"

#include "designs/kicad/sheetfile.h"

#include <algorithm>
#include <array>

namespace designs::kicad {

namespace {

constexpr std::array<std::string_view, 4> known{"Reference", "Value", "Footprint", "Datasheet"};

} // namespace

bool sameAscii(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&lower](char x, char y) { return lower(x) == lower(y); });
}

std::string_view mandatoryName(std::string_view name)
{
    const auto found = std::find_if(known.begin(), known.end(),
                                    [name](std::string_view other) { return sameAscii(name, other); });
    return found == known.end() ? name : *found;
}

bool isMandatory(std::string_view name, int formatVersion)
{
    return std::find(known.begin(), known.end(), mandatoryName(name)) != known.end() ||
           (formatVersion >= version::descriptionField && sameAscii(name, "Description"));
}

} // namespace designs::kicad
