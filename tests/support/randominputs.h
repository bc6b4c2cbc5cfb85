// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdint>
#include <iterator>
#include <random>
#include <type_traits>

/// Random choices for tests that try many inputs: the same ones on every machine and in every run.
class RandomInputs
{
public:
    explicit RandomInputs(std::uint32_t seed)
        : m_random(seed)
    {
    }

    /// From 0 to `limit` - 1; 0 when the limit is 0.
    template<std::integral Number>
    Number below(Number limit)
    {
        return limit == 0 ? Number(0) : Number(m_random() % std::uint32_t(limit));
    }

    bool flag() { return below(2) == 1; }

    /// True once in `count` times.
    bool once(int count) { return below(count) == 0; }

    template<class List>
    const auto &oneOf(const List &list)
    {
        return std::begin(list)[below(std::size(list))];
    }

    /// So many of the pieces, one after the other; a piece may come more than once.
    template<class List>
    auto textOf(const List &pieces, int count)
    {
        std::remove_cvref_t<decltype(*std::begin(pieces))> text;
        for (; count > 0; --count) {
            text += oneOf(pieces);
        }
        return text;
    }

private:
    std::mt19937 m_random;
};
