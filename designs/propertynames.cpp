// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/propertynames.h"

#include "designs/utf8.h"

#include <algorithm>

namespace designs {

NameId PropertyNames::intern(std::string_view name)
{
    const auto found = m_ids.find(name);
    if (found != m_ids.end()) {
        return found->second;
    }
    const QByteArray &kept = m_storage.emplace_back(name.data(), qsizetype(name.size()));
    const std::string_view view(kept.constData(), std::size_t(kept.size()));
    const auto id = NameId(m_names.size());
    m_names.push_back(view);
    m_ids.emplace(view, id);
    m_folded[caseFolded(view)].push_back(id);
    return id;
}

void PropertyNames::setAlias(std::string_view alias, NameId id)
{
    m_aliases[caseFolded(alias)] = id;
}

std::vector<NameId> PropertyNames::candidates(std::string_view name) const
{
    std::vector<NameId> ids;
    const auto add = [&ids](NameId id) {
        if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
            ids.push_back(id);
        }
    };
    if (const auto exact = m_ids.find(name); exact != m_ids.end()) {
        add(exact->second);
    }
    const std::string folded = caseFolded(name);
    if (const auto alias = m_aliases.find(folded); alias != m_aliases.end()) {
        add(alias->second);
    }
    if (const auto twins = m_folded.find(folded); twins != m_folded.end()) {
        std::for_each(twins->second.begin(), twins->second.end(), add);
    }
    return ids;
}

} // namespace designs
