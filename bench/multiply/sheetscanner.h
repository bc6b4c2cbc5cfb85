// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// A text inside a file, without its quotes. `text` points into the file's bytes.
struct FoundText
{
    std::size_t offset = 0;
    std::string_view text;
};

struct FoundReference
{
    FoundText reference;
    std::string_view
        path; ///< of the instance it belongs to; empty for the property Reference of a placed symbol
};

/// What has to change when a sheet moves to another place of a hierarchy, in the order of the file.
struct SheetScan
{
    bool complete = false;     ///< false when the file is no schematic or ends inside a list
    std::size_t headerEnd = 0; ///< where the list with the file's identifier begins
    FoundText uuid;
    std::vector<FoundText> paths;
    std::vector<FoundReference> references;
    std::vector<std::string_view> sheetFiles;
};

/// Reads a schematic of version 7 or later. The result points into `bytes`.
[[nodiscard]] SheetScan scanSheet(std::string_view bytes);

} // namespace bench
