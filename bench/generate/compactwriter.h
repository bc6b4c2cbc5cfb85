// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/schematicwriter.h"

namespace bench {

/// The layout of version 6: two blanks of indentation, several lists on a line, an empty line between groups
/// of items, and all references in the root sheet.
class CompactWriter final : public SchematicWriter
{
public:
    explicit CompactWriter(OutputFile &out)
        : SchematicWriter(out)
    {
    }

    [[nodiscard]] bool hasDescription() const override { return false; }
    [[nodiscard]] bool textsFirst() const override { return false; }
    [[nodiscard]] bool keepsReferencesInRoot() const override { return true; }
    [[nodiscard]] std::string_view emptyText() const override { return "~"; }

    void begin(const Uuid &file, std::string_view title) override;
    void library(std::span<const LibrarySymbol> symbols) override;
    void junction(Point at, const Uuid &uuid) override;
    void wire(Point from, Point to, const Uuid &uuid) override;
    void text(std::string_view text, Point at, const Uuid &uuid) override;
    void label(std::string_view text, Point at, const Uuid &uuid) override;
    void hierarchicalLabel(std::string_view text, Point at, const Uuid &uuid) override;
    void symbol(const PlacedSymbol &symbol) override;
    void sheet(const PlacedSheet &sheet) override;
    void sheetPages(std::span<const Uuid> sheets) override;
    void beginReferences() override;
    void symbolReference(const SymbolReference &reference) override;
    void endReferences() override;
    void end(bool root) override;

private:
    enum class Group : unsigned char
    {
        None,
        Junction,
        Wire,
        Text,
        Label,
        HierarchicalLabel
    };

    void startGroup(Group group);
    void librarySymbol(const LibrarySymbol &symbol);
    void libraryShape(const LibraryShape &shape);
    void libraryPin(const LibraryPin &pin);
    void libraryField(std::string_view name, std::string_view text, int id, Length y, bool hidden);
    void field(const Field &field, std::size_t id);
    void sheetField(std::string_view name, std::string_view text, int id, Point at,
                    std::string_view vertical);

    Group m_group = Group::None;
};

} // namespace bench
