// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/partplan.h"

#include "bench/generate/catalogue.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <string_view>

namespace bench {

namespace {

constexpr std::uint32_t partsPerLine = 5;
constexpr std::uint32_t partsPerSheet = 500;

/// A step that visits every line once and puts neighbours far apart.
std::uint32_t strideFor(std::uint32_t lines)
{
    std::uint32_t stride = std::max(1U, static_cast<std::uint32_t>(lines * 0.618));
    while (std::gcd(stride, lines) != 1) {
        ++stride;
    }
    return stride;
}

} // namespace

PartPlan::PartPlan(std::uint32_t parts, const Catalogue &catalogue)
{
    const std::uint32_t lines = std::max(1U, (parts + partsPerLine - 1) / partsPerLine);
    const std::uint64_t stride = strideFor(lines);
    std::vector<Kind> kinds(lines);
    for (std::uint32_t line = 0; line < lines; ++line) {
        kinds[line] = catalogue.kind(line);
    }
    std::map<std::string_view, std::uint32_t> used;
    m_parts.reserve(parts);
    for (std::uint32_t place = 0; place < parts; ++place) {
        const std::uint64_t shift = std::uint64_t{place / lines} * (lines / 7 + 1);
        const auto line = static_cast<std::uint32_t>((place % lines * stride + shift) % lines);
        const Kind kind = kinds[line];
        m_parts.push_back({line, ++used[librarySymbol(kind).prefix], kind});
    }
}

std::uint32_t PartPlan::sheetCount() const
{
    return (static_cast<std::uint32_t>(m_parts.size()) + partsPerSheet - 1) / partsPerSheet;
}

std::span<const Part> PartPlan::sheet(std::uint32_t number) const
{
    const std::size_t first = std::size_t{number} * partsPerSheet;
    return std::span(m_parts).subspan(first, std::min<std::size_t>(partsPerSheet, m_parts.size() - first));
}

} // namespace bench
