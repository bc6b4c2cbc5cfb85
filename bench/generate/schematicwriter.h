// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/librarysymbol.h"
#include "bench/support/uuid.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace bench {

class OutputFile;

/// Texts are as they stand in the file, that is, with escapes.
struct Field
{
    std::string_view name;
    std::string_view text;
    Point at;
    bool hidden = true;
    bool left = false;
};

/// Where a symbol or sheet stands in the hierarchy. The path is that of the sheet which holds it.
struct Instance
{
    std::string_view project;
    std::string_view path;
};

struct PlacedSymbol
{
    const LibrarySymbol *symbol = nullptr;
    int unit = 1;
    Point at;
    Uuid uuid;
    bool inBom = true;
    bool fitted = true;
    std::span<const Field> fields;
    std::span<const Uuid> pins; ///< one for every pin of the library symbol
    std::string_view reference;
    Instance instance;
};

struct PlacedSheet
{
    Point at;
    Uuid uuid;
    std::string_view name;
    std::string_view file;
    std::span<const std::string_view> pinNames;
    std::span<const Uuid> pins;
    std::uint32_t page = 0;
    Instance instance;
};

/// One line of the list of references that version 6 keeps in the root sheet.
struct SymbolReference
{
    std::string_view path; ///< of the sheet, without the root, ending in '/'
    Uuid symbol;
    std::string_view prefix;
    std::uint32_t number = 0;
    int unit = 1;
    std::string_view value;
    std::string_view footprint;
};

/// Writes the parts of a schematic file as one version of KiCad lays them out. The caller keeps KiCad's
/// order: begin, library, items of one kind after the other as listed here (texts before junctions where
/// textsFirst()), symbols, sheets, end.
class SchematicWriter
{
public:
    /// The writer of file version 6, 8 or 10; null for others. `out` must outlive it.
    [[nodiscard]] static std::unique_ptr<SchematicWriter> create(int version, OutputFile &out);

    SchematicWriter(const SchematicWriter &) = delete;
    SchematicWriter &operator=(const SchematicWriter &) = delete;
    virtual ~SchematicWriter() = default;

    /// Whether placed symbols have a property Description.
    [[nodiscard]] virtual bool hasDescription() const = 0;
    /// Whether texts stand before junctions; otherwise they follow the wires.
    [[nodiscard]] virtual bool textsFirst() const = 0;
    /// Whether the root sheet ends with a list of all references, instead of each symbol having its own.
    [[nodiscard]] virtual bool keepsReferencesInRoot() const = 0;
    /// How an empty text is stored by this version in the data sheet property.
    [[nodiscard]] virtual std::string_view emptyText() const = 0;

    virtual void begin(const Uuid &file, std::string_view title) = 0;
    virtual void library(std::span<const LibrarySymbol> symbols) = 0;
    virtual void junction(Point at, const Uuid &uuid) = 0;
    virtual void wire(Point from, Point to, const Uuid &uuid) = 0;
    virtual void text(std::string_view text, Point at, const Uuid &uuid) = 0;
    virtual void label(std::string_view text, Point at, const Uuid &uuid) = 0;
    virtual void hierarchicalLabel(std::string_view text, Point at, const Uuid &uuid) = 0;
    virtual void symbol(const PlacedSymbol &symbol) = 0;
    virtual void sheet(const PlacedSheet &sheet) = 0;
    /// The pages that the root lists: its own, and in version 6 those of `sheets` too.
    virtual void sheetPages(std::span<const Uuid> sheets) = 0;
    virtual void beginReferences() {}
    virtual void symbolReference(const SymbolReference &) {}
    virtual void endReferences() {}
    virtual void end(bool root) = 0;

protected:
    explicit SchematicWriter(OutputFile &out)
        : m_out(out)
    {
    }

    OutputFile &m_out;
};

} // namespace bench
