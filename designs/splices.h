// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace designs {

/// A range of bytes that is replaced; empty where something is put in between.
struct Splice
{
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string text = {};

    bool operator==(const Splice &) const = default;
};

/// Brings the splices into their order in the text, those at one place as they were made. False when two
/// overlap.
[[nodiscard]] bool sortSplices(std::vector<Splice> *splices);

/// Makes `result` the text with sorted splices made. Its memory is used again.
void makeSpliced(std::string_view text, const std::vector<Splice> &splices, std::string *result);

/// Part of a text with the sorted splices made, whose offsets are those of the whole text.
[[nodiscard]] std::string splicedPart(std::string_view text, std::size_t begin, std::size_t end,
                                      const std::vector<Splice> &splices);

} // namespace designs
