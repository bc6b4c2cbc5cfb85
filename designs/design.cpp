// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/design.h"
#include "designs/texts.h"

namespace designs {

Design::Design() = default;
Design::~Design() = default;

Side Design::placement(std::string_view) const
{
    return Side::NotPlaced;
}

SymbolCount Design::recount(Problem *) const
{
    SymbolCount count;
    count.placed = qsizetype(m_components.size());
    return count;
}

std::string Design::identityOf(const Component &) const
{
    return {};
}

int Design::lineOf(const Component &component) const
{
    return int(component.line);
}

std::optional<Position> Design::positionOf(const Component &) const
{
    return std::nullopt;
}

QStringList Design::changedFiles() const
{
    QStringList changed;
    for (std::size_t file = 0; file < m_fingerprints.size(); ++file) {
        const QString &path = m_files[qsizetype(file)];
        const bool isUntouched = file < m_stamps.size() && m_stamps[file].isOf(path);
        if (!isUntouched && fingerprintOfFile(path) != m_fingerprints[file]) {
            changed << path;
        }
    }
    return changed;
}

std::optional<QString> Design::checkEdit(const Edit &) const
{
    return FileTexts::tr("this design cannot be changed");
}

EditPlan Design::planEdits(std::span<const Edit> edits) const
{
    EditPlan plan;
    for (std::size_t edit = 0; edit < edits.size(); ++edit) {
        const QString why = checkEdit(edits[edit]).value_or(FileTexts::tr("this design cannot be changed"));
        plan.problems.push_back({edit, {m_info.file, 0, why}});
    }
    return plan;
}

std::optional<std::string_view> Design::stored(const Component &component, NameId id) const
{
    if (id == m_valueName) {
        return component.value;
    }
    if (id == m_referenceName) {
        return component.reference;
    }
    return component.stored(id);
}

std::optional<NameId> Design::storedName(const Component &component, std::span<const NameId> names) const
{
    std::optional<NameId> empty;
    for (const NameId id : names) {
        const auto text = stored(component, id);
        if (text && (!text->empty() || id == m_valueName || id == m_referenceName)) {
            return id;
        }
        empty = text && !empty ? id : empty;
    }
    return empty;
}

} // namespace designs
