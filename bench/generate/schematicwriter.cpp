// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/schematicwriter.h"

#include "bench/generate/compactwriter.h"
#include "bench/generate/tabwriter.h"

namespace bench {

std::unique_ptr<SchematicWriter> SchematicWriter::create(int version, OutputFile &out)
{
    switch (version) {
    case 6:
        return std::make_unique<CompactWriter>(out);
    case 8:
        return std::make_unique<TabWriter>(out, TabWriter::Version::V8);
    case 10:
        return std::make_unique<TabWriter>(out, TabWriter::Version::V10);
    default:
        return nullptr;
    }
}

} // namespace bench
