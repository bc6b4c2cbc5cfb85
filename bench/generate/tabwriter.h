// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/generate/schematicwriter.h"

namespace bench {

/// The layout since version 8: tabs, one list a line, references beside each symbol.
class TabWriter final : public SchematicWriter
{
public:
    enum class Version : unsigned char
    {
        V8,
        V10
    };

    TabWriter(OutputFile &out, Version version)
        : SchematicWriter(out)
        , m_v10(version == Version::V10)
    {
    }

    [[nodiscard]] bool hasDescription() const override { return true; }
    [[nodiscard]] bool textsFirst() const override { return m_v10; }
    [[nodiscard]] bool keepsReferencesInRoot() const override { return false; }
    [[nodiscard]] std::string_view emptyText() const override { return m_v10 ? "" : "~"; }

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
    void end(bool root) override;

private:
    template<typename... Pieces>
    void line(int depth, const Pieces &...pieces);

    void librarySymbol(const LibrarySymbol &symbol);
    void libraryField(std::string_view name, std::string_view text, Length y, bool hidden);
    void libraryShape(const LibraryShape &shape);
    void libraryPin(const LibraryPin &pin);
    void pinText(std::string_view kind, std::string_view text);
    void pinNames(const LibrarySymbol &symbol);
    void flags(int depth, const PlacedSymbol *symbol);
    void field(const Field &field);
    void sheetField(std::string_view name, std::string_view text, Point at, std::string_view vertical);
    void sheetPin(std::string_view name, Point at, const Uuid &uuid);
    void effects(int depth, std::string_view justify, bool hide);
    void stroke(int depth, Length width, std::string_view type = "default");

    bool m_v10 = false;
};

} // namespace bench
