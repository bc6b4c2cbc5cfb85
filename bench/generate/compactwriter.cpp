// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/compactwriter.h"

#include "bench/support/outputfile.h"

namespace bench {

namespace {

constexpr std::string_view font = "(effects (font (size 1.27 1.27))";

} // namespace

void CompactWriter::begin(const Uuid &file, std::string_view title)
{
    m_group = Group::None;
    m_out << "(kicad_sch (version 20211123) (generator eeschema)\n\n  (uuid " << file
          << ")\n\n  (paper \"A2\")\n\n"
          << "  (title_block\n    (title \"" << title << "\")\n    (date \"2026-01-15\")\n    (rev \"B\")\n"
          << "    (company \"Bench Instruments\")\n    (comment 1 \"Generated for measurements\")\n  )\n";
}

void CompactWriter::library(std::span<const LibrarySymbol> symbols)
{
    m_out << "\n  (lib_symbols\n";
    for (const LibrarySymbol &symbol : symbols) {
        librarySymbol(symbol);
    }
    m_out << "  )\n";
}

void CompactWriter::librarySymbol(const LibrarySymbol &symbol)
{
    m_out << "    (symbol \"" << symbol.library << ':' << symbol.name << '"'
          << (symbol.power ? " (power)" : "") << (symbol.hidePinNumbers ? " (pin_numbers hide)" : "")
          << " (pin_names (offset 0)" << (symbol.power ? " hide" : "") << ") (in_bom yes) (on_board yes)\n";
    libraryField("Reference", symbol.prefix, 0, 3810_um, symbol.power);
    libraryField("Value", symbol.name, 1, -3810_um, false);
    libraryField("Footprint", "", 2, {}, true);
    libraryField("Datasheet", "~", 3, {}, true);
    libraryField("ki_keywords", symbol.keywords, 4, {}, true);
    libraryField("ki_description", symbol.description, 5, {}, true);
    if (!symbol.filters.empty()) {
        libraryField("ki_fp_filters", symbol.filters, 6, {}, true);
    }
    m_out << "      (symbol \"" << symbol.name << "_0_1\"\n";
    for (const LibraryShape &shape : symbol.shapes) {
        libraryShape(shape);
    }
    m_out << "      )\n";
    for (int unit = 1; unit <= symbol.units; ++unit) {
        m_out << "      (symbol \"" << symbol.name << '_' << unit << "_1\"\n";
        for (const LibraryPin &pin : symbol.pins) {
            if (pin.unit == unit) {
                libraryPin(pin);
            }
        }
        m_out << "      )\n";
    }
    m_out << "    )\n";
}

void CompactWriter::libraryField(std::string_view name, std::string_view text, int id, Length y, bool hidden)
{
    m_out << "      (property \"" << name << "\" \"" << text << "\" (id " << id << ") (at 0 " << y << " 0)";
    if (hidden) {
        m_out << "\n        " << font << " hide)\n      ";
    }
    m_out << ")\n";
}

void CompactWriter::libraryShape(const LibraryShape &shape)
{
    if (shape.rectangle) {
        m_out << "        (rectangle (start " << shape.points[0].x << ' ' << shape.points[0].y << ") (end "
              << shape.points[1].x << ' ' << shape.points[1].y << ")\n";
    } else {
        m_out << "        (polyline\n          (pts\n";
        for (const Point &point : shape.points) {
            m_out << "            (xy " << point.x << ' ' << point.y << ")\n";
        }
        m_out << "          )\n";
    }
    m_out << "          (stroke (width " << shape.width
          << ") (type default) (color 0 0 0 0))\n          (fill (type " << shape.fill << "))\n        )\n";
}

void CompactWriter::libraryPin(const LibraryPin &pin)
{
    m_out << "        (pin " << pin.type << " line (at " << pin.at.x << ' ' << pin.at.y << ' ' << pin.angle
          << ") (length " << pin.length << ")\n          (name \"" << pin.name << "\" " << font
          << "))\n          (number \"" << pin.number << "\" " << font << "))\n        )\n";
}

void CompactWriter::startGroup(Group group)
{
    if (group != m_group) {
        m_out << '\n';
    }
    m_group = group;
}

void CompactWriter::junction(Point at, const Uuid &uuid)
{
    startGroup(Group::Junction);
    m_out << "  (junction (at " << at.x << ' ' << at.y << ") (diameter 0) (color 0 0 0 0)\n    (uuid " << uuid
          << ")\n  )\n";
}

void CompactWriter::wire(Point from, Point to, const Uuid &uuid)
{
    startGroup(Group::Wire);
    m_out << "  (wire (pts (xy " << from.x << ' ' << from.y << ") (xy " << to.x << ' ' << to.y
          << "))\n    (stroke (width 0) (type default) (color 0 0 0 0))\n    (uuid " << uuid << ")\n  )\n";
}

void CompactWriter::text(std::string_view text, Point at, const Uuid &uuid)
{
    startGroup(Group::Text);
    m_out << "  (text \"" << text << "\" (at " << at.x << ' ' << at.y << " 0)\n    " << font
          << " (justify left bottom))\n    (uuid " << uuid << ")\n  )\n";
}

void CompactWriter::label(std::string_view text, Point at, const Uuid &uuid)
{
    startGroup(Group::Label);
    m_out << "  (label \"" << text << "\" (at " << at.x << ' ' << at.y << " 0)\n    " << font
          << " (justify left bottom))\n    (uuid " << uuid << ")\n  )\n";
}

void CompactWriter::hierarchicalLabel(std::string_view text, Point at, const Uuid &uuid)
{
    startGroup(Group::HierarchicalLabel);
    m_out << "  (hierarchical_label \"" << text << "\" (shape input) (at " << at.x << ' ' << at.y
          << " 180)\n    " << font << " (justify right))\n    (uuid " << uuid << ")\n  )\n";
}

void CompactWriter::symbol(const PlacedSymbol &symbol)
{
    m_out << "\n  (symbol (lib_id \"" << symbol.symbol->library << ':' << symbol.symbol->name << "\") (at "
          << symbol.at.x << ' ' << symbol.at.y << " 0) (unit " << symbol.unit << ")\n    (in_bom "
          << (symbol.inBom ? "yes" : "no") << ") (on_board yes)\n    (uuid " << symbol.uuid << ")\n";
    for (std::size_t id = 0; id < symbol.fields.size(); ++id) {
        field(symbol.fields[id], id);
    }
    for (std::size_t index = 0; index < symbol.pins.size(); ++index) {
        const LibraryPin &pin = symbol.symbol->pins[index];
        if (pin.unit == symbol.unit) {
            m_out << "    (pin \"" << pin.number << "\" (uuid " << symbol.pins[index] << "))\n";
        }
    }
    m_out << "  )\n";
}

void CompactWriter::field(const Field &field, std::size_t id)
{
    m_out << "    (property \"" << field.name << "\" \"" << field.text << "\" (id " << id << ") (at "
          << field.at.x << ' ' << field.at.y << " 0)";
    if (field.left || field.hidden) {
        m_out << "\n      " << font << (field.left ? " (justify left)" : "") << (field.hidden ? " hide" : "")
              << ")\n    ";
    }
    m_out << ")\n";
}

void CompactWriter::sheet(const PlacedSheet &sheet)
{
    m_out << "\n  (sheet (at " << sheet.at.x << ' ' << sheet.at.y
          << ") (size 20.32 12.7) (fields_autoplaced)\n"
          << "    (stroke (width 0.1524) (type solid) (color 0 0 0 0))\n    (fill (color 0 0 0 0.0000))\n    "
             "(uuid "
          << sheet.uuid << ")\n";
    sheetField("Sheet name", sheet.name, 0, {sheet.at.x, sheet.at.y - 712_um}, "bottom");
    sheetField("Sheet file", sheet.file, 1, {sheet.at.x, sheet.at.y + 13285_um}, "top");
    for (std::size_t pin = 0; pin < sheet.pins.size(); ++pin) {
        const Length down = 2540_um * static_cast<int>(pin + 1);
        m_out << "    (pin \"" << sheet.pinNames[pin] << "\" input (at " << sheet.at.x << ' '
              << sheet.at.y + down << " 180)\n      " << font << " (justify left))\n      (uuid "
              << sheet.pins[pin] << ")\n    )\n";
    }
    m_out << "  )\n";
}

void CompactWriter::sheetField(std::string_view name, std::string_view text, int id, Point at,
                               std::string_view vertical)
{
    m_out << "    (property \"" << name << "\" \"" << text << "\" (id " << id << ") (at " << at.x << ' '
          << at.y << " 0)\n      " << font << " (justify left " << vertical << "))\n    )\n";
}

void CompactWriter::sheetPages(std::span<const Uuid> sheets)
{
    m_out << "\n  (sheet_instances\n    (path \"/\" (page \"1\"))\n";
    for (std::size_t index = 0; index < sheets.size(); ++index) {
        m_out << "    (path \"/" << sheets[index] << "\" (page \"" << index + 2 << "\"))\n";
    }
    m_out << "  )\n";
}

void CompactWriter::beginReferences()
{
    m_out << "\n  (symbol_instances\n";
}

void CompactWriter::symbolReference(const SymbolReference &reference)
{
    m_out << "    (path \"" << reference.path << reference.symbol << "\"\n      (reference \""
          << reference.prefix << reference.number << "\") (unit " << reference.unit << ") (value \""
          << reference.value << "\") (footprint \"" << reference.footprint << "\")\n    )\n";
}

void CompactWriter::endReferences()
{
    m_out << "  )\n";
}

void CompactWriter::end(bool)
{
    m_out << ")\n";
}

} // namespace bench
