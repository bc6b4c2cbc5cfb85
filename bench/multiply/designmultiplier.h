// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/multiply/sheetcopier.h"
#include "bench/support/outputfile.h"
#include "bench/support/uuid.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace bench {

/// Makes a large design of a real one of KiCad 7 or later: a new root sheet with as many sheets as needed,
/// each of them a full copy of the original's files in a folder of its own, with new references and instance
/// paths.
class DesignMultiplier final
{
public:
    explicit DesignMultiplier(std::filesystem::path root)
        : m_root(std::move(root))
    {
    }

    /// Reads the design and all sheets below it. Gives an empty text, or what is wrong and with which file.
    [[nodiscard]] std::string load();

    /// Writes at least `parts` components below `folder`, whose root has the name of the original root.
    [[nodiscard]] std::string write(std::uint64_t parts, const std::filesystem::path &folder);

    /// Components of the loaded design: references, power symbols left out.
    [[nodiscard]] std::uint64_t partCount() const { return m_parts; }

private:
    [[nodiscard]] std::string loadSheet(const std::filesystem::path &relative);
    void countParts();
    [[nodiscard]] bool writeCopy(std::uint64_t number, const std::filesystem::path &folder);
    [[nodiscard]] bool writeRoot(const std::filesystem::path &folder);
    void writeSheetSymbol(std::uint64_t number);
    [[nodiscard]] bool writeProject(const std::filesystem::path &folder);

    std::filesystem::path m_root;
    std::string m_rootId;
    std::map<std::filesystem::path, std::unique_ptr<SheetCopier>>
        m_files; ///< by path relative to the root's folder
    std::uint64_t m_parts = 0;
    std::uint64_t m_step = 10'000; ///< between the references of one copy and the next
    Uuid m_newRoot;
    std::vector<Uuid> m_sheets;
    OutputFile m_out;
};

} // namespace bench
