// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "designs/kicad/edit/editmodel.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace designs::kicad {

/// What an edit changes: a property or a flag.
enum class EditTarget
{
    Property,
    NotInBom,
    NotFitted
};

/// An edit in terms of what the design stores.
struct ResolvedEdit
{
    std::size_t component = 0;
    EditTarget target = EditTarget::Property;
    /// As stored.
    std::string name;
    /// The text as readers see it; nothing takes the property away. Flags are "1" when set.
    std::optional<std::string> wanted;
    /// What must be written for `wanted`.
    std::string written;
    std::optional<std::string> before;
    /// False when the design says so already.
    bool changes = false;
    /// Why it cannot be made; empty when it can.
    QString refusal;
};

/// Finds out what edits mean for a design and whether they can be made. Of new names that differ in letter
/// case only, the first that was asked for is taken.
class EditResolver
{
public:
    /// The model must outlive the resolver.
    explicit EditResolver(const EditModel &model);

    [[nodiscard]] ResolvedEdit resolve(const Edit &edit);

private:
    void resolveProperty(const Edit &edit, ResolvedEdit *resolved);
    void resolveFlag(const Edit &edit, ResolvedEdit *resolved);
    void findName(const std::string &name, ResolvedEdit *resolved);
    [[nodiscard]] QString removalRefusal(ResolvedEdit *resolved) const;
    [[nodiscard]] QString textRefusal(ResolvedEdit *resolved) const;
    [[nodiscard]] QString variantRefusal(const ResolvedEdit &resolved) const;
    [[nodiscard]] bool unitsDiffer(const ResolvedEdit &resolved) const;
    [[nodiscard]] QString outsideRefusal(const ResolvedEdit &resolved) const;
    [[nodiscard]] std::optional<std::string> readText(std::size_t component, NameId id) const;
    [[nodiscard]] bool allPlacesRead(const ResolvedEdit &resolved) const;
    [[nodiscard]] bool isInBase(std::size_t component, std::string_view name) const;

    const EditModel &m_model;
    /// Spellings of new names, by the folded name.
    std::unordered_map<std::string, std::string> m_newNames;
};

} // namespace designs::kicad
