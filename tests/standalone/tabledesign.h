// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// A design made from plain tables, with PACKAGE and VALUE as aliases of the footprint and the value.
class TableDesign : public designs::Design
{
public:
    using Properties = std::vector<std::pair<std::string_view, std::string_view>>;

    TableDesign()
    {
        m_referenceName = m_names.intern("Reference");
        m_valueName = m_names.intern("Value");
        m_names.setAlias("VALUE", m_valueName);
        m_names.setAlias("PACKAGE", m_names.intern("Footprint"));
        m_files = {QStringLiteral("/d/amp.kicad_sch"), QStringLiteral("/d/power.kicad_sch")};
        m_sheets = {{QStringLiteral("/"), 0}, {QStringLiteral("/Power"), 1}};
        m_info.file = m_files.first();
    }

    designs::Component &add(std::string_view reference, std::string_view value,
                            const Properties &properties = {})
    {
        std::vector<designs::Property> records;
        for (const auto &[name, text] : properties) {
            records.push_back({m_names.intern(name), m_arena.copy(text)});
        }
        designs::Component component;
        component.reference = m_arena.copy(reference);
        component.value = m_arena.copy(value);
        component.properties = m_arena.copy(std::span<const designs::Property>(records));
        component.line = quint32(m_components.size() + 1) * 10;
        ++m_symbols.placed;
        m_components.push_back(component);
        return m_components.back();
    }

    void useSheet(const QString &path, quint32 file) { m_sheets.push_back({path, file}); }
    designs::DesignInfo &editInfo() { return m_info; }
    designs::SymbolCount &editSymbols() { return m_symbols; }
    void place(const std::string &reference, designs::Side side) { m_sides[reference] = side; }
    void setRecount(designs::SymbolCount count, const designs::Problem &error = {})
    {
        m_recount = count;
        m_recountError = error;
    }

    /// What is wrong with an edit, and how edits are worked out; without it no edit is refused, and each has
    /// a change and replaces no file.
    std::function<std::optional<QString>(const designs::Edit &)> editCheck;
    std::function<void(designs::EditPlan &)> planning;

    [[nodiscard]] std::optional<QString> checkEdit(const designs::Edit &edit) const override
    {
        return editCheck ? editCheck(edit) : std::nullopt;
    }
    [[nodiscard]] designs::EditPlan planEdits(std::span<const designs::Edit> edits) const override
    {
        designs::EditPlan plan;
        for (std::size_t edit = 0; edit < edits.size(); ++edit) {
            plan.changes.push_back({edit, edits[edit].name, "old", edits[edit].value, m_info.file, 7, {}});
        }
        if (planning) {
            planning(plan);
        }
        return plan;
    }

    [[nodiscard]] int boardReads() const { return m_boardReads; }
    [[nodiscard]] designs::Side placement(std::string_view reference) const override
    {
        ++m_boardReads;
        const auto side = m_sides.find(std::string(reference));
        return side == m_sides.end() ? designs::Side::NotPlaced : side->second;
    }
    [[nodiscard]] designs::SymbolCount recount(designs::Problem *error) const override
    {
        *error = m_recountError;
        return m_recount.value_or(m_symbols);
    }

private:
    std::map<std::string, designs::Side> m_sides;
    std::optional<designs::SymbolCount> m_recount;
    designs::Problem m_recountError;
    mutable int m_boardReads = 0;
};
