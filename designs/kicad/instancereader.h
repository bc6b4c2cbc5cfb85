// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/listreader.h"
#include "designs/propertynames.h"

#include <span>
#include <vector>

namespace designs::kicad {

/// What a file says of the uses of one symbol or sheet, sorted by path.
struct InstanceList
{
    std::span<const InstanceRecord> records;
    /// A text of a variant holds "${" or "@{".
    bool hasVariables = false;
};

/// Reads what a file says of each use of its symbols and sheets: references, units, variants.
///
/// A sheet file can be used several times, and by several projects, so one symbol stands for many components.
/// Each use is identified by its instance path, the identifiers of the root and of the sheet symbols down to
/// it. The paths repeat in every symbol of the file: each is kept once in SheetFile::paths, and records hold
/// its number, so that a use is found by comparing integers.
class InstanceReader
{
public:
    /// All of these must outlive the reader.
    InstanceReader(ListReader &lists, SheetFile *sheet, TextArena *arena, PropertyNames *names);

    /// The table in which version 6 keeps the instances of the whole design, into SheetFile::instanceTable.
    bool readTable();
    /// The `instances` of a symbol or sheet.
    bool readInstances(InstanceList *list);

private:
    bool readProject();
    bool readInstance(InstanceRecord *record);
    bool readVariant(std::vector<VariantRecord> *variants);
    bool readVariantField(std::vector<Property> *fields);
    quint32 pathNumber(std::string_view path);

    ListReader &m_lists;
    SheetFile *m_sheet;
    TextArena *m_arena;
    PropertyNames *m_names;
    std::vector<InstanceRecord> m_records;
    bool m_hasVariables = false;
    /// Symbols that follow each other mostly have the same path.
    std::string_view m_lastPath;
    quint32 m_lastPathNumber = 0;
};

} // namespace designs::kicad
