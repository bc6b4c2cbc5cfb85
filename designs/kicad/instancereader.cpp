// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/instancereader.h"

#include "designs/kicad/braceescapes.h"

#include <algorithm>

namespace designs::kicad {

InstanceReader::InstanceReader(ListReader &lists, SheetFile *sheet, TextArena *arena, PropertyNames *names)
    : m_lists(lists)
    , m_sheet(sheet)
    , m_arena(arena)
    , m_names(names)
{
}

bool InstanceReader::readTable()
{
    return m_lists.readChildren([this](std::string_view keyword) {
        if (keyword != "path") {
            return false;
        }
        TableInstance entry;
        entry.offset = quint32(m_lists.scanner().tokenOffset());
        entry.path = m_lists.takeKept();
        const bool complete = m_lists.readChildren([this, &entry](std::string_view inner) {
            if (inner == "reference") {
                entry.reference = m_lists.takeValue();
            } else if (inner == "unit") {
                entry.unit = m_lists.takeInt(1);
            } else if (inner == "value") {
                entry.value = m_lists.takeValue();
            } else if (inner == "footprint") {
                entry.footprint = m_lists.takeValue();
            }
            return false;
        });
        m_sheet->instanceTable.push_back(entry);
        return complete;
    });
}

bool InstanceReader::readInstances(InstanceList *list)
{
    m_records.clear();
    m_hasVariables = false;
    const bool complete = m_lists.readChildren(
        [this](std::string_view keyword) { return keyword == "project" && readProject(); });
    // Sorted, so that one is found quickly; of several for the same path the first counts.
    std::stable_sort(m_records.begin(), m_records.end(),
                     [](const InstanceRecord &a, const InstanceRecord &b) { return a.path < b.path; });
    list->records = m_arena->copy(std::span<const InstanceRecord>(m_records));
    list->hasVariables = m_hasVariables;
    return complete;
}

bool InstanceReader::readProject()
{
    return m_lists.readChildren([this](std::string_view keyword) {
        if (keyword != "path") {
            return false;
        }
        InstanceRecord record;
        const bool complete = readInstance(&record);
        m_records.push_back(record);
        return complete;
    });
}

bool InstanceReader::readInstance(InstanceRecord *record)
{
    record->path = m_lists.scanner().takeText() ? pathNumber(m_lists.scanner().text()) : pathNumber({});
    std::vector<VariantRecord> variants;
    const bool complete = m_lists.readChildren([this, record, &variants](std::string_view keyword) {
        if (keyword == "reference") {
            record->reference = m_lists.takeValue();
        } else if (keyword == "unit") {
            record->unit = m_lists.takeInt(1);
        } else if (keyword == "page") {
            record->page = m_lists.takeKept();
        } else if (keyword == "variant") {
            return readVariant(&variants);
        }
        return false;
    });
    record->variants = m_arena->copy(std::span<const VariantRecord>(variants));
    return complete;
}

bool InstanceReader::readVariant(std::vector<VariantRecord> *variants)
{
    VariantRecord variant;
    std::vector<Property> fields;
    const bool complete = m_lists.readChildren([this, &variant, &fields](std::string_view keyword) {
        if (keyword == "name") {
            variant.name = m_lists.takeKept();
        } else if (keyword == "dnp") {
            variant.dnp = m_lists.takeFlag();
        } else if (keyword == "in_bom") {
            const bool flag = m_lists.takeFlag();
            variant.inBom = m_sheet->formatVersion < version::variantInBomCorrected ? !flag : flag;
        } else if (keyword == "field") {
            return readVariantField(&fields);
        }
        return false;
    });
    variant.fields = m_arena->copy(std::span<const Property>(fields));
    variants->push_back(variant);
    return complete;
}

bool InstanceReader::readVariantField(std::vector<Property> *fields)
{
    Property field;
    const bool complete = m_lists.readChildren([this, &field](std::string_view keyword) {
        if (keyword == "name") {
            field.name =
                m_names->intern(m_lists.scanner().takeText() ? m_lists.scanner().text() : std::string_view());
        } else if (keyword == "value") {
            field.value = m_lists.takeValue();
            m_hasVariables |= holdsVariable(field.value);
        }
        return false;
    });
    fields->push_back(field);
    return complete && m_lists.limitProperties(fields->size());
}

quint32 InstanceReader::pathNumber(std::string_view path)
{
    if (path == m_lastPath && !m_sheet->paths.empty()) {
        return m_lastPathNumber;
    }
    auto found = m_sheet->paths.find(path);
    if (found == m_sheet->paths.end()) {
        found = m_sheet->paths.emplace(m_arena->copy(path), quint32(m_sheet->paths.size())).first;
    }
    m_lastPath = found->first;
    m_lastPathNumber = found->second;
    return found->second;
}

} // namespace designs::kicad
