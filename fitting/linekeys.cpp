// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/linekeys.h"

#include "host/framework/hosttext.h"

#include <functional>
#include <unordered_map>
#include <utility>

namespace {

void mix(std::size_t *key, std::string_view text)
{
    // The constant is 2^64 divided by the golden ratio: neighbouring hashes get far from each other.
    constexpr std::size_t spread = 0x9e3779b97f4a7c15U;
    *key = (*key ^ std::hash<std::string_view>()(text)) * spread;
    *key ^= *key >> 32U;
}

} // namespace

LineKeys::LineKeys(const ListedParts &parts)
    : m_parts(parts)
    , m_keys(parts.components().size(), 0)
{
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        mix(&m_keys[i], referencePrefix(parts.components()[i]->reference));
    }
}

void LineKeys::mixPending()
{
    for (const QString &property : std::as_const(m_pending)) {
        const PROPNAME name(toHostText(property));
        for (std::size_t i = 0; i < m_keys.size(); ++i) {
            mix(&m_keys[i], text(i, name));
        }
    }
    m_pending.clear();
}

bool LineKeys::joinDifferent(const QString &property, Empty empty)
{
    mixPending();
    const PROPNAME name(toHostText(property));
    std::unordered_map<std::size_t, std::string_view> texts;
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        std::string_view own = text(i, name);
        if (!DesignFields::isFilled(own)) {
            own = {};
        }
        if (own.empty() && empty == Empty::IsAny) {
            continue;
        }
        const auto [known, isNew] = texts.emplace(m_keys[i], own);
        if (!isNew && known->second != own) {
            return true;
        }
    }
    return false;
}

std::string_view LineKeys::text(std::size_t part, const PROPNAME &name) const
{
    const auto found = m_parts.design().properties().find(*m_parts.components()[part], name);
    return found ? std::string_view(found->data(), std::size_t(found->size())) : std::string_view();
}
