// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/design.h"

namespace designs {

Design::Design() = default;
Design::~Design() = default;

Side Design::placement(std::string_view) const
{
    return Side::NotPlaced;
}

SymbolCount Design::recount(Problem *) const
{
    SymbolCount count;
    count.placed = qsizetype(m_components.size());
    return count;
}

int Design::lineOf(const Component &component) const
{
    return int(component.line);
}

std::optional<std::string_view> Design::stored(const Component &component, NameId id) const
{
    if (id == m_valueName) {
        return component.value;
    }
    if (id == m_referenceName) {
        return component.reference;
    }
    return component.stored(id);
}

} // namespace designs
