// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/splices.h"

#include <algorithm>
#include <numeric>

namespace designs {

namespace {

void append(std::string_view text, std::size_t begin, std::size_t end, const std::vector<Splice> &splices,
            std::string *result)
{
    std::size_t at = begin;
    for (const Splice &splice : splices) {
        *result += text.substr(at, splice.begin - at);
        *result += splice.text;
        at = splice.end;
    }
    *result += text.substr(at, end - at);
}

} // namespace

bool sortSplices(std::vector<Splice> *splices)
{
    std::stable_sort(splices->begin(), splices->end(), [](const Splice &a, const Splice &b) {
        return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
    });
    return std::adjacent_find(splices->begin(), splices->end(), [](const Splice &a, const Splice &b) {
               return b.begin < a.end;
           }) == splices->end();
}

void makeSpliced(std::string_view text, const std::vector<Splice> &splices, std::string *result)
{
    const std::size_t more =
        std::accumulate(splices.begin(), splices.end(), std::size_t(0),
                        [](std::size_t sum, const Splice &splice) { return sum + splice.text.size(); });
    result->clear();
    result->reserve(text.size() + more);
    append(text, 0, text.size(), splices, result);
}

std::string splicedPart(std::string_view text, std::size_t begin, std::size_t end,
                        const std::vector<Splice> &splices)
{
    std::string result;
    append(text, begin, end, splices, &result);
    return result;
}

} // namespace designs
