// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/catalogue.h"
#include "bench/generate/partplan.h"
#include "bench/generate/schematicwriter.h"
#include "bench/generate/sheetcontent.h"
#include "bench/support/outputfile.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace bench {

/// Writes a schematic hierarchy: bench.kicad_sch, bench.kicad_pro and one file for each sheet of 500
/// components. Equal arguments give equal bytes.
class DesignGenerator final
{
public:
    /// `version` is 6, 8 or 10.
    DesignGenerator(std::uint32_t parts, int version, std::uint64_t seed, std::filesystem::path folder);

    /// Replaces the files in the folder, which is made when missing. Gives an empty text, or what went wrong.
    [[nodiscard]] std::string run();

private:
    struct Reference
    {
        std::uint32_t sheet = 0;
        Placement placement;
    };

    [[nodiscard]] bool writeSheet(std::uint32_t number);
    [[nodiscard]] bool writeRoot();
    [[nodiscard]] bool writeProject();
    void writeDrawing(const SheetContent &content);
    void writeTexts(const SheetContent &content);
    void writePart(const Placement &placement, const std::string &path, Random &random);
    void writePower(const Placement &placement, const std::string &path, Random &random);
    void writeSymbol(const Placement &placement, const LineText *line, std::span<const Field> fields,
                     std::string_view reference, const std::string &path, Random &random);
    void writeReferences();
    void writeReference(const Reference &reference);
    void writeSheetSymbol(std::uint32_t number, const std::string &path, Random &random);

    std::filesystem::path m_folder;
    std::uint64_t m_seed = 0;
    OutputFile m_out;
    std::unique_ptr<SchematicWriter> m_writer;
    Catalogue m_catalogue;
    PartPlan m_plan;
    Uuid m_root;
    std::vector<Uuid> m_sheets;
    std::vector<Reference> m_references; ///< filled only for versions that keep them in the root
    std::uint32_t m_nextPower = 1;
};

} // namespace bench
