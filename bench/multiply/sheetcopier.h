// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/multiply/sheetscanner.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

class OutputFile;

/// The number a reference ends with; nothing for those without, such as `R?`.
[[nodiscard]] std::optional<std::uint64_t> referenceNumber(std::string_view reference);

/// Writes copies of one sheet file that differ in instance paths and references only.
class SheetCopier final
{
public:
    /// `root` is the identifier of the root sheet of the original design; instances of other designs stay as
    /// they are.
    SheetCopier(std::string bytes, std::string_view root);

    SheetCopier(const SheetCopier &) = delete;
    SheetCopier &operator=(const SheetCopier &) = delete;

    [[nodiscard]] const SheetScan &scan() const { return m_scan; }
    [[nodiscard]] const std::string &bytes() const { return m_bytes; }

    /// The references of this design, one for each instance, power symbols included.
    [[nodiscard]] std::vector<std::string_view> references() const;

    /// `path` replaces the path of the root; `shift` is added to every reference's number.
    void write(OutputFile &out, std::string_view path, std::uint64_t shift) const;

private:
    struct Change
    {
        std::size_t offset = 0;
        std::size_t length = 0;
        std::optional<std::uint64_t> number; ///< of a reference; nothing for a path
    };

    [[nodiscard]] bool belongs(std::string_view path) const;

    std::string m_bytes;
    SheetScan m_scan;
    std::string m_rootPath;
    std::vector<Change> m_changes;
};

} // namespace bench
