// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/support/uuid.h"

#include "bench/support/random.h"

#include <string_view>

namespace bench {

Uuid Uuid::random(Random &random)
{
    Uuid uuid;
    uuid.high = (random.next() & ~0xF000ULL) | 0x4000ULL;
    uuid.low = (random.next() & ~(3ULL << 62U)) | (2ULL << 62U);
    return uuid;
}

std::array<char, 36> Uuid::text() const
{
    static constexpr std::string_view digits = "0123456789abcdef";
    std::array<char, 36> text;
    std::size_t at = 0;
    for (unsigned nibble = 0; nibble < 32; ++nibble) {
        if (nibble == 8 || nibble == 12 || nibble == 16 || nibble == 20) {
            text[at++] = '-';
        }
        const std::uint64_t half = nibble < 16 ? high : low;
        text[at++] = digits[(half >> (60U - 4U * (nibble % 16U))) & 15U];
    }
    return text;
}

std::string Uuid::string() const
{
    const std::array<char, 36> characters = text();
    return {characters.begin(), characters.end()};
}

} // namespace bench
