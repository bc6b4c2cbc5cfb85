// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/problem.h"

#include <optional>
#include <string>
#include <string_view>

namespace designs {

/// How a file of delimited cells is written, so that a change of it keeps the manner.
struct CsvDialect
{
    enum class LineEnd
    {
        Lf,
        CrLf,
        Cr
    };
    enum class Encoding
    {
        Utf8,
        /// Windows-1252, which is Latin-1 with printable characters from 0x80 to 0x9F.
        Windows1252
    };

    /// One of comma, semicolon, tab and bar.
    char delimiter = ',';
    /// How the first line ends; a file may mix them.
    LineEnd lineEnd = LineEnd::Lf;
    Encoding encoding = Encoding::Utf8;
    /// The file begins with the UTF-8 byte-order mark.
    bool byteOrderMark = false;
    /// Every cell of the first records stands in quotes.
    bool quotesAll = false;

    bool operator==(const CsvDialect &) const = default;

    [[nodiscard]] std::string_view lineEndText() const
    {
        return lineEnd == LineEnd::Lf ? "\n" : lineEnd == LineEnd::Cr ? "\r" : "\r\n";
    }
};

/// The UTF-8 byte-order mark.
inline constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

/// Recognises how the bytes are written. Nothing, with the reason and its line in `error` (the file is left
/// to the caller), for what is no text: a spreadsheet, UTF-16, zero bytes, broken UTF-8 behind its mark.
///
/// The delimiter is the one that cuts most of the first records into the same number of cells; a first line
/// "sep=;" as spreadsheets write it decides.
[[nodiscard]] std::optional<CsvDialect> recogniseDialect(std::string_view bytes, Problem *error);

/// The UTF-8 form of a text in Windows-1252.
[[nodiscard]] std::string utf8FromWindows1252(std::string_view text);

/// The reverse; nothing for a text with characters that Windows-1252 lacks.
[[nodiscard]] std::optional<std::string> windows1252FromUtf8(std::string_view text);

} // namespace designs
