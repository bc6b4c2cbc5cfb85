// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvfile.h"
#include "designs/problem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace designs {

/// Which column of a part list holds what.
///
/// The heading row is the one of the first 20 records that has a heading for the references (Reference(s),
/// Designator(s), RefDes, Ref(s), Part References and the like; letter case, blanks and punctuation do not
/// count) and the most headings for value, footprint and quantity; the first of equals. What stands above it
/// is a title and belongs to no part.
struct PartListColumns
{
    /// Index into CsvFile::rows().
    std::size_t headingRow = 0;
    /// Under which name each column is known: its heading; a second column of the same heading is "Heading
    /// (2)", a column that has contents but no heading is "Column 7". Empty for a column without both.
    std::vector<std::string> names;
    std::size_t reference = 0;
    std::optional<std::size_t> value;
    std::optional<std::size_t> footprint;
    std::optional<std::size_t> quantity;

    /// True for the columns whose cells are properties: named, and neither reference, value nor quantity.
    [[nodiscard]] bool isProperty(std::size_t column) const
    {
        return !names[column].empty() && column != reference && column != value && column != quantity;
    }
};

/// Whether a column with that heading would be taken for the references, value, footprint or quantity.
[[nodiscard]] bool isRoleHeading(std::string_view heading);
/// Whether it would be taken for the values, or for the footprints.
[[nodiscard]] bool isValueHeading(std::string_view heading);
[[nodiscard]] bool isFootprintHeading(std::string_view heading);

/// Whether a column with that heading (BOMSKIP, BOMLINKS, BOMPART...) marks the parts in it by having
/// contents: an empty cell is no property then.
[[nodiscard]] bool isMarkerHeading(std::string_view heading);

/// Finds the columns. Nothing, with the reason in `error` (the file is left to the caller), when no row has a
/// heading for the references, or one heading stands twice for the references, value, footprint or quantity.
/// What was settled by choice is added to `warnings`.
[[nodiscard]] std::optional<PartListColumns> findPartListColumns(const CsvFile &file, Problem *error,
                                                                 std::vector<Problem> *warnings);

} // namespace designs
