// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace designs::kicad {

/// Where the characters that give an S-expression its structure stand in a block of 64 bytes; bit i is byte
/// i.
struct BlockMasks
{
    std::uint64_t open = 0;
    std::uint64_t close = 0;
    std::uint64_t quote = 0;
    std::uint64_t backslash = 0;
    std::uint64_t newline = 0;
    /// "#" may begin a comment line.
    std::uint64_t hash = 0;
};

/// The number of set bits. std::popcount calls a function where the processor need not have an instruction.
[[nodiscard]] constexpr int bitCount(std::uint64_t bits)
{
    bits -= (bits >> 1) & 0x5555555555555555U;
    bits = (bits & 0x3333333333333333U) + ((bits >> 2) & 0x3333333333333333U);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0FU;
    return int((bits * 0x0101010101010101U) >> 56);
}

#if defined(__SSE2__)

[[nodiscard]] inline BlockMasks blockMasks(const char *at)
{
    const auto equal = [](__m128i bytes, char c) {
        return std::uint64_t(std::uint32_t(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)))));
    };
    BlockMasks masks;
    for (int part = 0; part < 4; ++part) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at + 16 * part));
        masks.open |= equal(bytes, '(') << (16 * part);
        masks.close |= equal(bytes, ')') << (16 * part);
        masks.quote |= equal(bytes, '"') << (16 * part);
        masks.newline |= equal(bytes, '\n') << (16 * part);
        masks.backslash |= equal(bytes, '\\') << (16 * part);
        masks.hash |= equal(bytes, '#') << (16 * part);
    }
    return masks;
}

#else

[[nodiscard]] inline BlockMasks blockMasks(const char *at)
{
    BlockMasks masks;
    for (int i = 0; i < 64; ++i) {
        const std::uint64_t bit = std::uint64_t(1) << i;
        switch (at[i]) {
        case '(':
            masks.open |= bit;
            break;
        case ')':
            masks.close |= bit;
            break;
        case '"':
            masks.quote |= bit;
            break;
        case '\n':
            masks.newline |= bit;
            break;
        case '\\':
            masks.backslash |= bit;
            break;
        case '#':
            masks.hash |= bit;
            break;
        default:
            break;
        }
    }
    return masks;
}

#endif

/// The bytes that stand inside quotes, for a block that begins outside: every bit from an opening quote up
/// to, not including, its closing one. A byte is inside when an odd number of quotes stands at or before it;
/// the doubling shifts sum these parities up for all 64 bytes in six steps.
[[nodiscard]] inline std::uint64_t insideQuotes(std::uint64_t quotes)
{
    for (int shift = 1; shift < 64; shift *= 2) {
        quotes ^= quotes << shift;
    }
    return quotes;
}

/// The bit of the ")" that brings the depth to 0, or -1 when none does; `depth` follows.
[[nodiscard]] inline int findListEnd(std::uint64_t open, std::uint64_t close, int *depth)
{
    for (std::uint64_t rest = open | close; rest != 0; rest &= rest - 1) {
        const int bit = std::countr_zero(rest);
        if ((open >> bit) & 1) {
            ++*depth;
        } else if (--*depth == 0) {
            return bit;
        }
    }
    return -1;
}

/// What a quoted text of up to 16 bytes holds, as bit masks.
struct TextMasks
{
    /// Quote, backslash or line feed.
    unsigned stop = 0;
    unsigned brace = 0;
    unsigned notAscii = 0;
};

[[nodiscard]] inline TextMasks textMasks(const char *at)
{
    TextMasks masks;
#if defined(__SSE2__)
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
    const auto equal = [bytes](char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); };
    const __m128i stop = _mm_or_si128(_mm_or_si128(equal('"'), equal('\\')), equal('\n'));
    masks.stop = unsigned(_mm_movemask_epi8(stop));
    masks.brace = unsigned(_mm_movemask_epi8(equal('{')));
    masks.notAscii = unsigned(_mm_movemask_epi8(bytes));
#else
    for (unsigned i = 0; i < 16; ++i) {
        const char c = at[i];
        masks.stop |= unsigned(c == '"' || c == '\\' || c == '\n') << i;
        masks.brace |= unsigned(c == '{') << i;
        masks.notAscii |= unsigned((c & 0x80) != 0) << i;
    }
#endif
    return masks;
}

} // namespace designs::kicad
