// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/designgenerator.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <tuple>
#include <utility>

namespace bench {

namespace {

constexpr std::string_view project = "bench";
constexpr std::string_view powerPrefix = "#PWR0";
constexpr std::array<std::string_view, 2> sheetPins{"CLK", "~{RESET}"};

std::string sheetName(std::uint32_t number)
{
    const std::string digits = std::to_string(number + 1);
    return "sheet" + std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits;
}

bool isPower(const Placement &placement)
{
    return librarySymbol(placement.kind).power;
}

std::string_view prefixOf(const Placement &placement)
{
    return isPower(placement) ? powerPrefix : librarySymbol(placement.kind).prefix;
}

std::string referenceOf(const Placement &placement)
{
    return std::string(prefixOf(placement)) + std::to_string(placement.number);
}

} // namespace

DesignGenerator::DesignGenerator(std::uint32_t parts, int version, std::uint64_t seed,
                                 std::filesystem::path folder)
    : m_folder(std::move(folder))
    , m_seed(seed)
    , m_writer(SchematicWriter::create(version, m_out))
    , m_catalogue(seed, m_writer->emptyText())
    , m_plan(parts, m_catalogue)
{
    Random random = Random::stream(seed, ~0ULL);
    m_root = Uuid::random(random);
    m_sheets.resize(m_plan.sheetCount());
    for (Uuid &sheet : m_sheets) {
        sheet = Uuid::random(random);
    }
}

std::string DesignGenerator::run()
{
    std::error_code error;
    std::filesystem::create_directories(m_folder, error);
    if (error) {
        return m_folder.string() + ": cannot be made: " + error.message();
    }
    for (std::uint32_t number = 0; number < m_sheets.size(); ++number) {
        if (!writeSheet(number)) {
            return (m_folder / sheetName(number)).string() + ".kicad_sch: cannot be written";
        }
    }
    if (!writeRoot() || !writeProject()) {
        return (m_folder / project).string() + ": cannot be written";
    }
    return {};
}

bool DesignGenerator::writeSheet(std::uint32_t number)
{
    if (!m_out.open(m_folder / (sheetName(number) + ".kicad_sch"))) {
        return false;
    }
    Random random = Random::stream(m_seed + 1, number);
    const auto sheets = static_cast<std::uint32_t>(m_sheets.size());
    const SheetContent content =
        drawSheet(m_plan.sheet(number), m_plan.sheet((number + sheets - 1) % sheets), m_nextPower, random);
    m_nextPower += content.powerSymbols;

    m_writer->begin(Uuid::random(random), "Channel " + std::to_string(number + 1));
    m_writer->library(librarySymbols());
    writeDrawing(content);
    for (std::size_t pin = 0; pin < sheetPins.size(); ++pin) {
        const Length down = 2540_um * static_cast<int>(pin);
        m_writer->hierarchicalLabel(sheetPins[pin], {10160_um, 12700_um + down}, Uuid::random(random));
    }
    const std::string path = '/' + m_root.string() + '/' + m_sheets[number].string();
    for (const Placement &placement : content.symbols) {
        if (isPower(placement)) {
            writePower(placement, path, random);
        } else {
            writePart(placement, path, random);
        }
        if (m_writer->keepsReferencesInRoot()) {
            m_references.push_back({number, placement});
        }
    }
    m_writer->end(false);
    return m_out.close();
}

void DesignGenerator::writeDrawing(const SheetContent &content)
{
    if (m_writer->textsFirst()) {
        writeTexts(content);
    }
    for (const DrawnItem &junction : content.junctions) {
        m_writer->junction(junction.from, junction.uuid);
    }
    for (const DrawnItem &wire : content.wires) {
        m_writer->wire(wire.from, wire.to, wire.uuid);
    }
    if (!m_writer->textsFirst()) {
        writeTexts(content);
    }
    for (const DrawnItem &label : content.labels) {
        m_writer->label("NET" + std::to_string(label.number), label.from, label.uuid);
    }
}

void DesignGenerator::writeTexts(const SheetContent &content)
{
    for (const DrawnItem &text : content.texts) {
        m_writer->text("Place close to pin " + std::to_string(text.number) +
                           "\\n(see \\\"layout\\\" note, ≤ 2 mm)",
                       text.from, text.uuid);
    }
}

void DesignGenerator::writePart(const Placement &placement, const std::string &path, Random &random)
{
    const LineText line = m_catalogue.text(placement.line);
    const std::string reference = referenceOf(placement);
    const Point at = placement.at;
    const Field extra = m_writer->hasDescription() ? Field{"Description", line.description, at}
                                                   : Field{"Manufacturer", line.manufacturer, at};
    const std::array fields{Field{"Reference", reference, {at.x + 2540_um, at.y - 1270_um}, false, true},
                            Field{"Value", line.value, {at.x + 2540_um, at.y + 1270_um}, false, true},
                            Field{"Footprint", line.footprint, {at.x - 1778_um, at.y}},
                            Field{"Datasheet", line.datasheet, at},
                            extra,
                            Field{"MPN", line.partNumber, at},
                            Field{"CODE", line.code, at},
                            Field{"COST", line.cost, at}};
    writeSymbol(placement, &line, fields, reference, path, random);
}

void DesignGenerator::writePower(const Placement &placement, const std::string &path, Random &random)
{
    const std::string reference = referenceOf(placement);
    const LibrarySymbol &symbol = librarySymbol(placement.kind);
    const Point at = placement.at;
    const std::array fields{Field{"Reference", reference, {at.x, at.y + 6350_um}},
                            Field{"Value", symbol.name, {at.x, at.y + 3810_um}, false},
                            Field{"Footprint", "", at}, Field{"Datasheet", "", at},
                            Field{"Description", symbol.description, at}};
    const std::size_t count = m_writer->hasDescription() ? 5 : 4;
    writeSymbol(placement, nullptr, std::span(fields).first(count), reference, path, random);
}

void DesignGenerator::writeSymbol(const Placement &placement, const LineText *line,
                                  std::span<const Field> fields, std::string_view reference,
                                  const std::string &path, Random &random)
{
    PlacedSymbol placed;
    placed.symbol = &librarySymbol(placement.kind);
    placed.unit = placement.unit;
    placed.at = placement.at;
    placed.uuid = placement.uuid;
    placed.inBom = !line || line->inBom;
    placed.fitted = !line || line->fitted;
    placed.fields = fields;
    placed.reference = reference;
    placed.instance = {project, path};
    std::array<Uuid, 8> pins;
    for (std::size_t pin = 0; pin < placed.symbol->pins.size(); ++pin) {
        pins[pin] = Uuid::random(random);
    }
    placed.pins = std::span(pins).first(placed.symbol->pins.size());
    m_writer->symbol(placed);
}

bool DesignGenerator::writeRoot()
{
    if (!m_out.open(m_folder / "bench.kicad_sch")) {
        return false;
    }
    Random random = Random::stream(m_seed + 2, 0);
    const std::string path = '/' + m_root.string();
    m_writer->begin(m_root, "Bench");
    m_writer->library({});
    for (std::uint32_t number = 0; number < m_sheets.size(); ++number) {
        writeSheetSymbol(number, path, random);
    }
    m_writer->sheetPages(m_sheets);
    if (m_writer->keepsReferencesInRoot()) {
        writeReferences();
    }
    m_writer->end(true);
    return m_out.close();
}

void DesignGenerator::writeSheetSymbol(std::uint32_t number, const std::string &path, Random &random)
{
    const std::string name = sheetName(number);
    const std::string file = name + ".kicad_sch";
    const std::array pins{Uuid::random(random), Uuid::random(random)};
    PlacedSheet sheet;
    sheet.at = {25400_um + 30480_um * static_cast<int>(number % 18),
                25400_um + 20320_um * static_cast<int>(number / 18)};
    sheet.uuid = m_sheets[number];
    sheet.name = name;
    sheet.file = file;
    sheet.pinNames = sheetPins;
    sheet.pins = pins;
    sheet.page = number + 2;
    sheet.instance = {project, path};
    m_writer->sheet(sheet);
}

void DesignGenerator::writeReferences()
{
    std::ranges::sort(m_references, {}, [](const Reference &reference) {
        const Placement &placement = reference.placement;
        return std::tuple(prefixOf(placement), placement.number, placement.unit);
    });
    m_writer->beginReferences();
    for (const Reference &reference : m_references) {
        writeReference(reference);
    }
    m_writer->endReferences();
}

void DesignGenerator::writeReference(const Reference &reference)
{
    const Placement &placement = reference.placement;
    const std::string path = '/' + m_sheets[reference.sheet].string() + '/';
    SymbolReference entry;
    entry.path = path;
    entry.symbol = placement.uuid;
    entry.prefix = prefixOf(placement);
    entry.number = placement.number;
    entry.unit = placement.unit;
    if (isPower(placement)) {
        entry.value = librarySymbol(placement.kind).name;
        m_writer->symbolReference(entry);
        return;
    }
    const LineText line = m_catalogue.text(placement.line);
    entry.value = line.value;
    entry.footprint = line.footprint;
    m_writer->symbolReference(entry);
}

bool DesignGenerator::writeProject()
{
    if (!m_out.open(m_folder / "bench.kicad_pro")) {
        return false;
    }
    m_out << "{\n  \"meta\": {\n    \"filename\": \"bench.kicad_pro\",\n    \"version\": 1\n  },\n"
          << "  \"schematic\": {\n    \"meta\": {\n      \"version\": 1\n    }\n  },\n"
          << "  \"sheets\": [\n    [\n      \"" << m_root << "\",\n      \"Root\"\n    ]";
    for (std::uint32_t number = 0; number < m_sheets.size(); ++number) {
        m_out << ",\n    [\n      \"" << m_sheets[number] << "\",\n      \"" << sheetName(number)
              << "\"\n    ]";
    }
    m_out << "\n  ],\n  \"text_variables\": {}\n}\n";
    return m_out.close();
}

} // namespace bench
