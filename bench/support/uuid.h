// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string>

namespace bench {

class Random;

/// An identifier of 128 bits, ordered as its text is.
struct Uuid
{
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    auto operator<=>(const Uuid &) const = default;

    /// The next identifier of the generator, marked as a random one (version 4).
    [[nodiscard]] static Uuid random(Random &random);

    /// Lower case, with hyphens.
    [[nodiscard]] std::array<char, 36> text() const;
    [[nodiscard]] std::string string() const;
};

} // namespace bench
