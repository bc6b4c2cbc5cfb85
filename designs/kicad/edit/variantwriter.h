// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/edit/sexprnode.h"
#include "designs/kicad/edit/symbolrewrite.h"
#include "designs/kicad/sheetfile.h"
#include "designs/splices.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace designs::kicad {

/// Writes what a variant changes in one use of a symbol into the list of that path.
class VariantWriter
{
public:
    /// What the symbol says without the variant: null for a property it lacks.
    struct Base
    {
        std::function<const std::string_view *(std::string_view name)> property;
        bool dnp = false;
        bool inBom = true;
    };

    VariantWriter(std::string_view bytes, int formatVersion, std::string_view variant,
                  std::vector<Splice> *splices);

    /// What equals the symbol is taken out; a variant that says nothing more is taken out whole.
    void write(const SexprNode &path, const VariantRewrite &change, const Base &base);

private:
    void collect(const VariantRewrite &change, const Base &base);
    void takeField(const WantedText &change, const Base &base);
    void takeFlag(std::string_view word, bool wanted, bool base);
    void drop(const SexprNode &list);
    void insertLists(const SexprNode &path);
    [[nodiscard]] const SexprNode *findField(std::string_view name) const;

    std::string_view m_bytes;
    int m_version;
    std::string_view m_variant;
    std::vector<Splice> *m_splices;
    /// Null when the path has none.
    const SexprNode *m_node = nullptr;
    std::vector<Splice> m_inside;
    std::size_t m_dropped = 0;
    std::vector<std::pair<std::string, bool>> m_newFlags;
    std::vector<WantedText> m_newFields;
};

} // namespace designs::kicad
