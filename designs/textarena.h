// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/largememory.h"

#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

namespace designs {

/// Storage for many small texts and records that live as long as the design: memory is taken in large blocks,
/// never moves and is given back all at once.
class TextArena
{
public:
    /// A copy of the text that stays valid while the arena lives.
    [[nodiscard]] std::string_view copy(std::string_view text)
    {
        if (text.empty()) {
            return {};
        }
        char *at = static_cast<char *>(take(text.size(), 1));
        std::memcpy(at, text.data(), text.size());
        return {at, text.size()};
    }

    /// A copy of the records.
    template<class T>
    requires std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>
    [[nodiscard]] std::span<T> copy(std::span<const T> records)
    {
        if (records.empty()) {
            return {};
        }
        void *at = take(records.size_bytes(), alignof(T));
        std::memcpy(at, records.data(), records.size_bytes());
        return {static_cast<T *>(at), records.size()};
    }

private:
    /// Small designs take small blocks.
    static constexpr std::size_t smallBlock = 256 * 1024;
    static constexpr std::size_t largeBlock = std::size_t(2) << 20;
    static constexpr std::size_t smallBlocks = 8;

    void *take(std::size_t size, std::size_t alignment)
    {
        std::size_t start = (m_used + alignment - 1) & ~(alignment - 1);
        if (m_blocks.empty() || start + size > m_capacity) {
            const std::size_t block = m_blocks.size() < smallBlocks ? smallBlock : largeBlock;
            m_capacity = size > block ? size : block;
            m_blocks.push_back(allocateMemory(m_capacity));
            start = 0;
        }
        m_used = start + size;
        return m_blocks.back().get() + start;
    }

    std::vector<LargeMemory> m_blocks;
    std::size_t m_capacity = 0;
    std::size_t m_used = 0;
};

} // namespace designs
