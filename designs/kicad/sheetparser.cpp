// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/sheetparser.h"

#include "designs/kicad/braceescapes.h"
#include "designs/kicad/mandatorynames.h"
#include "designs/texts.h"

#include <algorithm>

namespace designs::kicad {

namespace {

/// The unit of a library symbol's part "NAME_UNIT_STYLE"; 0 for what all units share.
int unitOfPart(std::string_view name)
{
    const std::size_t style = name.rfind('_');
    const std::size_t unit =
        style == std::string_view::npos || style == 0 ? style : name.rfind('_', style - 1);
    return unit == std::string_view::npos ? 0 : leadingInt(name.substr(unit + 1, style - unit - 1), 0);
}

} // namespace

SheetParser::SheetParser(std::string_view bytes, SheetFile *sheet, TextArena *arena, PropertyNames *names)
    : m_lists(bytes, *sheet, arena)
    , m_scanner(m_lists.scanner())
    , m_instances(m_lists, sheet, arena, names)
    , m_sheet(sheet)
    , m_arena(arena)
    , m_names(names)
{
}

bool SheetParser::parse(const std::stop_token &stop)
{
    if (m_scanner.next() != SexprScanner::Token::Open || m_scanner.keyword() != "kicad_sch") {
        return m_lists.refuse(
            KicadTexts::tr("this is no KiCad schematic: it does not begin with \"(kicad_sch\""));
    }
    const auto readUnlessStopped = [this, &stop](std::string_view keyword) {
        return stop.stop_requested() ? m_lists.refuse(stoppedProblem({}).text) : readTopLevel(keyword);
    };
    if (!m_lists.readChildren(readUnlessStopped)) {
        return false;
    }
    if (m_sheet->formatVersion == 0) {
        return m_lists.refuse(KicadTexts::tr("the schematic has no version, or none that can be read"));
    }
    if (m_sheet->formatVersion < version::oldest) {
        return m_lists.refuse(
            KicadTexts::tr("the schematic is of version %1, before KiCad 6; open it in KiCad 6 or later and "
                           "save it")
                .arg(m_sheet->formatVersion));
    }
    if (m_scanner.next() != SexprScanner::Token::End) {
        return m_lists.refuse(KicadTexts::tr("there is text behind the end of the schematic"));
    }
    return true;
}

bool SheetParser::readTopLevel(std::string_view keyword)
{
    if (keyword == "symbol") {
        return readSymbol();
    }
    if (keyword == "sheet") {
        return readSheet();
    }
    if (keyword == "lib_symbols") {
        return readLibrary();
    }
    if (keyword == "symbol_instances") {
        return m_instances.readTable();
    }
    if (keyword == "rule_area") {
        return readRuleArea();
    }
    if (keyword == "title_block") {
        return readTitleBlock();
    }
    if (keyword == "version") {
        m_sheet->formatVersion = m_lists.takeInt(0);
    } else if (keyword == "uuid") {
        m_sheet->uuid = m_lists.takeKept();
    }
    return false;
}

bool SheetParser::readTitleBlock()
{
    return m_lists.readChildren([this](std::string_view keyword) {
        TitleBlock &title = m_sheet->title;
        if (keyword == "title") {
            title.title = m_lists.takeValue();
        } else if (keyword == "date") {
            title.date = m_lists.takeValue();
        } else if (keyword == "rev") {
            title.revision = m_lists.takeValue();
        } else if (keyword == "company") {
            title.company = m_lists.takeValue();
        } else if (keyword == "comment") {
            const int number = m_lists.takeInt(0);
            if (number >= 1 && number <= 9) {
                title.comments[number - 1] = m_lists.takeValue();
            }
        }
        return false;
    });
}

bool SheetParser::readLibrary()
{
    return m_lists.readChildren(
        [this](std::string_view keyword) { return keyword == "symbol" && readLibrarySymbol(); });
}

bool SheetParser::readLibrarySymbol()
{
    const std::string_view name = m_lists.takeKept();
    LibrarySymbol symbol;
    const bool complete = m_lists.readChildren([this, &symbol](std::string_view keyword) {
        if (keyword == "power") {
            symbol.power = true;
        } else if (keyword == "symbol") {
            symbol.units = std::max(symbol.units, m_scanner.takeText() ? unitOfPart(m_scanner.raw()) : 0);
        } else if (keyword == "property" && m_scanner.takeText()) {
            const std::string_view property = m_scanner.raw();
            if (property == "ki_description" || property == "Description") {
                symbol.description = m_lists.takeValue();
            } else if (property == "ki_keywords") {
                symbol.keywords = m_lists.takeValue();
            }
        }
        return false;
    });
    m_sheet->library.emplace(name, symbol);
    return complete;
}

bool SheetParser::readSymbol()
{
    PlacedSymbol symbol;
    symbol.offset = quint32(m_scanner.tokenOffset());
    m_properties.clear();
    const bool complete = m_lists.readChildren([this, &symbol](std::string_view keyword) {
        if (keyword == "property") {
            addSymbolProperty(&symbol, &m_properties);
        } else if (keyword == "pin") {
            return false;
        } else if (keyword == "instances") {
            InstanceList list;
            const bool isRead = m_instances.readInstances(&list);
            symbol.instances = list.records;
            symbol.hasVariables |= list.hasVariables;
            return isRead;
        } else if (keyword == "lib_id") {
            symbol.libId = m_lists.takeKept();
        } else if (keyword == "uuid") {
            symbol.uuid = m_lists.takeKept();
        } else if (keyword == "at") {
            symbol.at = m_lists.takePoint();
        } else if (keyword == "unit") {
            symbol.unit = m_lists.takeInt(1);
        } else if (keyword == "in_bom") {
            symbol.inBom = m_lists.takeFlag();
        } else if (keyword == "dnp") {
            symbol.dnp = m_lists.takeFlag();
        } else if (keyword == "lib_name") {
            symbol.libName = m_lists.takeKept();
        }
        return false;
    });
    symbol.properties = m_arena->copy(std::span<const Property>(m_properties));
    m_sheet->symbols.push_back(symbol);
    return complete;
}

SheetParser::PropertyText SheetParser::readProperty()
{
    PropertyText property;
    if (!m_scanner.takeText()) {
        return property;
    }
    if (!m_scanner.isQuoted() && m_scanner.raw() == "private" && !m_scanner.takeText()) {
        return property;
    }
    property.name = m_scanner.text();
    return property;
}

void SheetParser::addSymbolProperty(PlacedSymbol *symbol, std::vector<Property> *properties)
{
    const std::string_view name = mandatoryName(readProperty().name);
    if (name == "Reference") {
        symbol->reference = m_lists.takeValue();
        return;
    }
    if (name == "Value") {
        symbol->value = m_lists.takeValue();
        symbol->hasVariables |= m_scanner.mayHoldBrace() && holdsVariable(symbol->value);
        return;
    }
    const NameId id = m_names->intern(name);
    const std::string_view value = m_lists.takeValue();
    symbol->hasVariables |= m_scanner.mayHoldBrace() && holdsVariable(value);
    const auto same = std::find_if(properties->begin(), properties->end(),
                                   [id](const Property &other) { return other.name == id; });
    if (same != properties->end()) {
        same->value = value;
    } else {
        properties->push_back({id, value});
        m_lists.limitProperties(properties->size());
    }
}

bool SheetParser::readSheet()
{
    SheetSymbol sheet;
    sheet.offset = quint32(m_scanner.tokenOffset());
    std::vector<PropertyText> texts;
    const bool complete = m_lists.readChildren([this, &sheet, &texts](std::string_view keyword) {
        if (keyword == "property") {
            PropertyText property;
            property.name = m_lists.keep(readProperty().name);
            property.value = m_lists.takeValue();
            texts.push_back(property);
            return m_lists.readChildren([this, &texts](std::string_view inner) {
                if (inner == "id") {
                    texts.back().id = m_lists.takeInt(-1);
                }
                return false;
            });
        }
        if (keyword == "instances") {
            InstanceList list;
            const bool isRead = m_instances.readInstances(&list);
            sheet.instances = list.records;
            return isRead;
        }
        if (keyword == "uuid") {
            sheet.uuid = m_lists.takeKept();
        } else if (keyword == "at") {
            sheet.at = m_lists.takePoint();
        } else if (keyword == "in_bom") {
            sheet.inBom = m_lists.takeFlag();
        } else if (keyword == "dnp") {
            sheet.dnp = m_lists.takeFlag();
        }
        return false;
    });
    nameSheet(&sheet, texts);
    m_sheet->sheets.push_back(sheet);
    return complete;
}

/// Version 6 writes the names of these two properties in the user's language; there their ids tell which they
/// are.
void SheetParser::nameSheet(SheetSymbol *sheet, const std::vector<PropertyText> &texts)
{
    std::vector<Property> others;
    for (const PropertyText &text : texts) {
        const bool isName =
            text.id == 0 || (text.id < 0 && (text.name == "Sheetname" || text.name == "Sheet name"));
        const bool isFile =
            text.id == 1 || (text.id < 0 && (text.name == "Sheetfile" || text.name == "Sheet file"));
        if (isName) {
            sheet->name = text.value;
        } else if (isFile) {
            sheet->file = text.value;
        } else {
            others.push_back({m_names->intern(text.name), text.value});
        }
    }
    sheet->properties = m_arena->copy(std::span<const Property>(others));
}

bool SheetParser::readRuleArea()
{
    RuleArea area;
    const bool complete = m_lists.readChildren([this, &area](std::string_view keyword) {
        if (keyword == "in_bom") {
            area.inBom = m_lists.takeFlag();
        } else if (keyword == "dnp") {
            area.dnp = m_lists.takeFlag();
        } else if (keyword == "polyline") {
            return readOutline(&area.outline);
        }
        return false;
    });
    if (!area.inBom || area.dnp) {
        m_corners += area.outline.size();
        if (m_corners > maximumCorners) {
            return m_lists.refuse(
                KicadTexts::tr("the rule areas have more than %1 corners").arg(maximumCorners));
        }
        m_sheet->ruleAreas.push_back(std::move(area));
    }
    return complete;
}

bool SheetParser::readOutline(std::vector<Point> *outline)
{
    return m_lists.readChildren([this, outline](std::string_view keyword) {
        return keyword == "pts" && m_lists.readChildren([this, outline](std::string_view point) {
            if (point == "xy") {
                outline->push_back(m_lists.takePoint());
            }
            return false;
        });
    });
}

} // namespace designs::kicad
