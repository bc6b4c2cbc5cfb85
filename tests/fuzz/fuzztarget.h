// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

/// Feeds one input to the reader under test and aborts when the reader breaks one of its promises; the
/// signature is that of https://llvm.org/docs/LibFuzzer.html
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Inputs that the reader accepts, to begin the mutations with.
[[nodiscard]] std::vector<std::string> fuzzSeeds();

/// Words that mean something to the reader.
[[nodiscard]] std::vector<std::string> fuzzWords();

/// Aborts with a message unless `holds`.
inline void promise(bool holds, const char *text)
{
    if (!holds) {
        std::fprintf(stderr, "broken promise: %s\n", text);
        std::abort();
    }
}
