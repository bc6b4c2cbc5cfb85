// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/tabwriter.h"

#include "bench/support/outputfile.h"

namespace bench {

template<typename... Pieces>
void TabWriter::line(int depth, const Pieces &...pieces)
{
    static constexpr std::string_view tabs = "\t\t\t\t\t\t\t\t";
    m_out << tabs.substr(0, static_cast<std::size_t>(depth));
    (m_out << ... << pieces) << '\n';
}

void TabWriter::begin(const Uuid &file, std::string_view title)
{
    line(0, "(kicad_sch");
    line(1, "(version ", m_v10 ? "20260306" : "20231120", ')');
    line(1, "(generator \"eeschema\")");
    line(1, "(generator_version \"", m_v10 ? "10.0" : "8.0", "\")");
    line(1, "(uuid \"", file, "\")");
    line(1, "(paper \"A2\")");
    line(1, "(title_block");
    line(2, "(title \"", title, "\")");
    line(2, "(date \"2026-01-15\")");
    line(2, "(rev \"B\")");
    line(2, "(company \"Bench Instruments\")");
    line(2, "(comment 1 \"Generated for measurements\")");
    line(1, ')');
}

void TabWriter::library(std::span<const LibrarySymbol> symbols)
{
    if (symbols.empty()) {
        line(1, "(lib_symbols)");
        return;
    }
    line(1, "(lib_symbols");
    for (const LibrarySymbol &symbol : symbols) {
        librarySymbol(symbol);
    }
    line(1, ')');
}

void TabWriter::librarySymbol(const LibrarySymbol &symbol)
{
    line(2, "(symbol \"", symbol.library, ':', symbol.name, '"');
    if (symbol.power) {
        line(3, m_v10 ? "(power global)" : "(power)");
    }
    pinNames(symbol);
    flags(3, nullptr);
    if (m_v10) {
        line(3, "(duplicate_pin_numbers_are_jumpers no)");
    }
    libraryField("Reference", symbol.prefix, 3810_um, symbol.power);
    libraryField("Value", symbol.name, -3810_um, false);
    libraryField("Footprint", "", {}, true);
    libraryField("Datasheet", emptyText(), {}, true);
    libraryField("Description", symbol.description, {}, true);
    libraryField("ki_keywords", symbol.keywords, {}, true);
    if (!symbol.filters.empty()) {
        libraryField("ki_fp_filters", symbol.filters, {}, true);
    }
    line(3, "(symbol \"", symbol.name, "_0_1\"");
    for (const LibraryShape &shape : symbol.shapes) {
        libraryShape(shape);
    }
    line(3, ')');
    for (int unit = 1; unit <= symbol.units; ++unit) {
        line(3, "(symbol \"", symbol.name, '_', unit, "_1\"");
        for (const LibraryPin &pin : symbol.pins) {
            if (pin.unit == unit) {
                libraryPin(pin);
            }
        }
        line(3, ')');
    }
    if (m_v10) {
        line(3, "(embedded_fonts no)");
    }
    line(2, ')');
}

void TabWriter::pinNames(const LibrarySymbol &symbol)
{
    if (m_v10) {
        if (symbol.hidePinNumbers) {
            line(3, "(pin_numbers\n\t\t\t\t(hide yes)\n\t\t\t)");
        }
        line(3, "(pin_names\n\t\t\t\t(offset 0)", symbol.power ? "\n\t\t\t\t(hide yes)" : "", "\n\t\t\t)");
        return;
    }
    if (symbol.hidePinNumbers) {
        line(3, "(pin_numbers hide)");
    }
    line(3, "(pin_names\n\t\t\t\t(offset 0)", symbol.power ? " hide)" : "\n\t\t\t)");
}

void TabWriter::flags(int depth, const PlacedSymbol *symbol)
{
    line(depth, "(exclude_from_sim no)");
    line(depth, symbol && !symbol->inBom ? "(in_bom no)" : "(in_bom yes)");
    line(depth, "(on_board yes)");
    if (m_v10) {
        line(depth, "(in_pos_files yes)");
    }
    if (symbol) {
        line(depth, symbol->fitted ? "(dnp no)" : "(dnp yes)");
    }
}

void TabWriter::libraryField(std::string_view name, std::string_view text, Length y, bool hidden)
{
    line(3, "(property \"", name, "\" \"", text, '"');
    line(4, "(at 0 ", y, " 0)");
    if (m_v10) {
        line(4, "(show_name no)");
        line(4, "(do_not_autoplace no)");
        if (hidden) {
            line(4, "(hide yes)");
        }
    }
    effects(4, {}, hidden && !m_v10);
    line(3, ')');
}

void TabWriter::libraryShape(const LibraryShape &shape)
{
    line(4, shape.rectangle ? "(rectangle" : "(polyline");
    if (shape.rectangle) {
        line(5, "(start ", shape.points[0].x, ' ', shape.points[0].y, ')');
        line(5, "(end ", shape.points[1].x, ' ', shape.points[1].y, ')');
    } else {
        line(5, "(pts");
        m_out << "\t\t\t\t\t\t";
        for (const Point &point : shape.points) {
            m_out << (&point == shape.points.data() ? "(xy " : " (xy ") << point.x << ' ' << point.y << ')';
        }
        m_out << '\n';
        line(5, ')');
    }
    stroke(5, shape.width);
    line(5, "(fill");
    line(6, "(type ", shape.fill, ')');
    line(5, ')');
    line(4, ')');
}

void TabWriter::libraryPin(const LibraryPin &pin)
{
    line(4, "(pin ", pin.type, " line");
    line(5, "(at ", pin.at.x, ' ', pin.at.y, ' ', pin.angle, ')');
    line(5, "(length ", pin.length, ')');
    pinText("name", m_v10 && pin.name == "~" ? std::string_view() : pin.name);
    pinText("number", pin.number);
    line(4, ')');
}

void TabWriter::pinText(std::string_view kind, std::string_view text)
{
    line(5, '(', kind, " \"", text, '"');
    effects(6, {}, false);
    line(5, ')');
}

void TabWriter::effects(int depth, std::string_view justify, bool hide)
{
    line(depth, "(effects");
    line(depth + 1, "(font");
    line(depth + 2, "(size 1.27 1.27)");
    line(depth + 1, ')');
    if (!justify.empty()) {
        line(depth + 1, "(justify ", justify, ')');
    }
    if (hide) {
        line(depth + 1, "(hide yes)");
    }
    line(depth, ')');
}

void TabWriter::stroke(int depth, Length width, std::string_view type)
{
    line(depth, "(stroke");
    line(depth + 1, "(width ", width, ')');
    line(depth + 1, "(type ", type, ')');
    line(depth, ')');
}

void TabWriter::junction(Point at, const Uuid &uuid)
{
    line(1, "(junction");
    line(2, "(at ", at.x, ' ', at.y, ')');
    line(2, "(diameter 0)");
    line(2, "(color 0 0 0 0)");
    line(2, "(uuid \"", uuid, "\")");
    line(1, ')');
}

void TabWriter::wire(Point from, Point to, const Uuid &uuid)
{
    line(1, "(wire");
    line(2, "(pts");
    line(3, "(xy ", from.x, ' ', from.y, ") (xy ", to.x, ' ', to.y, ')');
    line(2, ')');
    stroke(2, {});
    line(2, "(uuid \"", uuid, "\")");
    line(1, ')');
}

void TabWriter::text(std::string_view text, Point at, const Uuid &uuid)
{
    line(1, "(text \"", text, '"');
    line(2, "(exclude_from_sim no)");
    line(2, "(at ", at.x, ' ', at.y, " 0)");
    effects(2, "left bottom", false);
    line(2, "(uuid \"", uuid, "\")");
    line(1, ')');
}

void TabWriter::label(std::string_view text, Point at, const Uuid &uuid)
{
    line(1, "(label \"", text, '"');
    line(2, "(at ", at.x, ' ', at.y, " 0)");
    effects(2, "left bottom", false);
    line(2, "(uuid \"", uuid, "\")");
    line(1, ')');
}

void TabWriter::hierarchicalLabel(std::string_view text, Point at, const Uuid &uuid)
{
    line(1, "(hierarchical_label \"", text, '"');
    line(2, "(shape input)");
    line(2, "(at ", at.x, ' ', at.y, " 180)");
    effects(2, "right", false);
    line(2, "(uuid \"", uuid, "\")");
    line(1, ')');
}

void TabWriter::symbol(const PlacedSymbol &symbol)
{
    line(1, "(symbol");
    line(2, "(lib_id \"", symbol.symbol->library, ':', symbol.symbol->name, "\")");
    line(2, "(at ", symbol.at.x, ' ', symbol.at.y, " 0)");
    line(2, "(unit ", symbol.unit, ')');
    if (m_v10) {
        line(2, "(body_style 1)");
    }
    flags(2, &symbol);
    line(2, "(uuid \"", symbol.uuid, "\")");
    for (const Field &each : symbol.fields) {
        field(each);
    }
    for (std::size_t pin = 0; pin < symbol.pins.size(); ++pin) {
        line(2, "(pin \"", symbol.symbol->pins[pin].number, '"');
        line(3, "(uuid \"", symbol.pins[pin], "\")");
        line(2, ')');
    }
    line(2, "(instances");
    line(3, "(project \"", symbol.instance.project, '"');
    line(4, "(path \"", symbol.instance.path, '"');
    line(5, "(reference \"", symbol.reference, "\")");
    line(5, "(unit ", symbol.unit, ')');
    line(4, ')');
    line(3, ')');
    line(2, ')');
    line(1, ')');
}

void TabWriter::field(const Field &field)
{
    line(2, "(property \"", field.name, "\" \"", field.text, '"');
    line(3, "(at ", field.at.x, ' ', field.at.y, " 0)");
    if (m_v10) {
        if (field.hidden) {
            line(3, "(hide yes)");
        }
        line(3, "(show_name no)");
        line(3, "(do_not_autoplace no)");
    }
    effects(3, field.left ? "left" : "", field.hidden && !m_v10);
    line(2, ')');
}

void TabWriter::sheet(const PlacedSheet &sheet)
{
    constexpr Length width = 20320_um;
    constexpr Length height = 12700_um;
    line(1, "(sheet");
    line(2, "(at ", sheet.at.x, ' ', sheet.at.y, ')');
    line(2, "(size ", width, ' ', height, ')');
    if (m_v10) {
        line(2, "(exclude_from_sim no)");
        line(2, "(in_bom yes)");
        line(2, "(on_board yes)");
        line(2, "(dnp no)");
    }
    line(2, "(fields_autoplaced yes)");
    stroke(2, {}, "solid");
    line(2, "(fill");
    line(3, m_v10 ? "(color 0 0 0 0)" : "(color 0 0 0 0.0000)");
    line(2, ')');
    line(2, "(uuid \"", sheet.uuid, "\")");
    sheetField("Sheetname", sheet.name, {sheet.at.x, sheet.at.y - 712_um}, "bottom");
    sheetField("Sheetfile", sheet.file, {sheet.at.x, sheet.at.y + height + 585_um}, "top");
    for (std::size_t pin = 0; pin < sheet.pins.size(); ++pin) {
        const Length down = 2540_um * static_cast<int>(pin + 1);
        sheetPin(sheet.pinNames[pin], {sheet.at.x, sheet.at.y + down}, sheet.pins[pin]);
    }
    line(2, "(instances");
    line(3, "(project \"", sheet.instance.project, '"');
    line(4, "(path \"", sheet.instance.path, '"');
    line(5, "(page \"", sheet.page, "\")");
    line(4, ')');
    line(3, ')');
    line(2, ')');
    line(1, ')');
}

void TabWriter::sheetField(std::string_view name, std::string_view text, Point at, std::string_view vertical)
{
    line(2, "(property \"", name, "\" \"", text, '"');
    line(3, "(at ", at.x, ' ', at.y, " 0)");
    if (m_v10) {
        line(3, "(show_name no)");
        line(3, "(do_not_autoplace no)");
    }
    effects(3, vertical == "top" ? "left top" : "left bottom", false);
    line(2, ')');
}

void TabWriter::sheetPin(std::string_view name, Point at, const Uuid &uuid)
{
    line(2, "(pin \"", name, "\" input");
    line(3, "(at ", at.x, ' ', at.y, " 180)");
    if (m_v10) {
        line(3, "(uuid \"", uuid, "\")");
    }
    effects(3, "left", false);
    if (!m_v10) {
        line(3, "(uuid \"", uuid, "\")");
    }
    line(2, ')');
}

void TabWriter::sheetPages(std::span<const Uuid>)
{
    line(1, "(sheet_instances");
    line(2, "(path \"/\"");
    line(3, "(page \"1\")");
    line(2, ')');
    line(1, ')');
}

void TabWriter::end(bool root)
{
    if (m_v10 && root) {
        line(1, "(embedded_fonts no)");
    }
    m_out << (m_v10 ? ")\n" : ")");
}

} // namespace bench
