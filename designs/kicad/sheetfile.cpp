// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/sheetfile.h"

#include <algorithm>

namespace designs::kicad {

const InstanceRecord *findInstance(std::span<const InstanceRecord> records, quint32 path)
{
    const auto found = std::lower_bound(records.begin(), records.end(), path,
                                        [](const InstanceRecord &a, quint32 b) { return a.path < b; });
    return found != records.end() && found->path == path ? &*found : nullptr;
}

const LibrarySymbol *SheetFile::librarySymbol(const PlacedSymbol &symbol) const
{
    const auto found = library.find(symbol.libName.empty() ? symbol.libId : symbol.libName);
    return found == library.end() ? nullptr : &found->second;
}

std::optional<quint32> SheetFile::pathNumber(std::string_view path) const
{
    const auto found = paths.find(path);
    return found == paths.end() ? std::nullopt : std::optional(found->second);
}

} // namespace designs::kicad
