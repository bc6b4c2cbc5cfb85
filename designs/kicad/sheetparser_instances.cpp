// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What a file says of each use of its symbols and sheets: references, units, variants.
#include "designs/kicad/braceescapes.h"
#include "designs/kicad/sheetparser.h"

#include <algorithm>

namespace designs::kicad {

bool SheetParser::readInstanceTable()
{
    return readChildren([this](std::string_view keyword) {
        if (keyword != "path") {
            return false;
        }
        TableInstance entry;
        entry.offset = quint32(m_scanner.tokenOffset());
        entry.path = takeKept();
        const bool complete = readChildren([this, &entry](std::string_view inner) {
            if (inner == "reference") {
                entry.reference = takeValue();
            } else if (inner == "unit") {
                entry.unit = takeInt(1);
            } else if (inner == "value") {
                entry.value = takeValue();
            } else if (inner == "footprint") {
                entry.footprint = takeValue();
            }
            return false;
        });
        m_sheet->instanceTable.push_back(entry);
        return complete;
    });
}

bool SheetParser::readInstances(std::span<const InstanceRecord> *records)
{
    m_instances.clear();
    const bool complete = readChildren(
        [this](std::string_view keyword) { return keyword == "project" && readProject(&m_instances); });
    // Sorted, so that one is found quickly; of several for the same path the first counts.
    std::stable_sort(m_instances.begin(), m_instances.end(),
                     [](const InstanceRecord &a, const InstanceRecord &b) { return a.path < b.path; });
    *records = m_arena->copy(std::span<const InstanceRecord>(m_instances));
    return complete;
}

bool SheetParser::readProject(std::vector<InstanceRecord> *records)
{
    return readChildren([this, records](std::string_view keyword) {
        if (keyword != "path") {
            return false;
        }
        InstanceRecord record;
        const bool complete = readInstance(&record);
        records->push_back(record);
        return complete;
    });
}

bool SheetParser::readInstance(InstanceRecord *record)
{
    record->path = m_scanner.takeText() ? pathNumber(m_scanner.text()) : pathNumber({});
    std::vector<VariantRecord> variants;
    const bool complete = readChildren([this, record, &variants](std::string_view keyword) {
        if (keyword == "reference") {
            record->reference = takeValue();
        } else if (keyword == "unit") {
            record->unit = takeInt(1);
        } else if (keyword == "page") {
            record->page = takeKept();
        } else if (keyword == "variant") {
            return readVariant(&variants);
        }
        return false;
    });
    record->variants = m_arena->copy(std::span<const VariantRecord>(variants));
    return complete;
}

bool SheetParser::readVariant(std::vector<VariantRecord> *variants)
{
    VariantRecord variant;
    std::vector<Property> fields;
    const bool complete = readChildren([this, &variant, &fields](std::string_view keyword) {
        if (keyword == "name") {
            variant.name = takeKept();
        } else if (keyword == "dnp") {
            variant.dnp = takeFlag();
        } else if (keyword == "in_bom") {
            const bool flag = takeFlag();
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

bool SheetParser::readVariantField(std::vector<Property> *fields)
{
    Property field;
    const bool complete = readChildren([this, &field](std::string_view keyword) {
        if (keyword == "name") {
            field.name = m_names->intern(m_scanner.takeText() ? m_scanner.text() : std::string_view());
        } else if (keyword == "value") {
            field.value = takeValue();
            m_variantHasVariables |= holdsVariable(field.value);
        }
        return false;
    });
    fields->push_back(field);
    return complete && limitProperties(fields->size());
}

quint32 SheetParser::pathNumber(std::string_view path)
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
