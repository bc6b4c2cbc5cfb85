// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

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

/// Splits at the commas outside double quotes in the plainest way; empty pieces count inside quotes only.
inline QStringList splitOutsideQuotes(const QString &text)
{
    QStringList values;
    bool isInside = false;
    for (const QString &piece : text.split(u'"')) {
        values += isInside ? QStringList{piece} : piece.split(u',', Qt::SkipEmptyParts);
        isInside = !isInside;
    }
    return values;
}
