// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bench {

/// A small, fast generator of pseudo-random numbers that gives the same numbers on every machine and standard
/// library. The algorithm is SplitMix64 (Steele, Lea, Flood: "Fast splittable pseudorandom number
/// generators", 2014).
class Random final
{
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed)
    {
    }

    /// The generator of an independent stream, so that the numbers of one sheet or BOM line do not depend on
    /// others.
    [[nodiscard]] static Random stream(std::uint64_t seed, std::uint64_t number)
    {
        return Random(Random(seed ^ Random(number).next()).next());
    }

    [[nodiscard]] std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    /// A number from 0 up to, but not including, `bound`.
    [[nodiscard]] std::uint32_t below(std::uint32_t bound)
    {
        return static_cast<std::uint32_t>(((next() >> 32U) * bound) >> 32U);
    }

private:
    std::uint64_t m_state = 0;
};

} // namespace bench
