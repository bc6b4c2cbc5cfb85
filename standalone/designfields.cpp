// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designfields.h"

#include "designs/utf8.h"

#include <algorithm>
#include <unordered_set>

using designs::NameId;

namespace {

QString textOf(const QByteArray &name)
{
    return designs::nameFromUtf8({name.data(), std::size_t(name.size())});
}

} // namespace

DesignFields::DesignFields(const designs::Design &design, std::shared_ptr<const FieldNames> names)
    : m_design(design)
    , m_names(std::move(names))
{
}

bool DesignFields::isFilled(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos &&
           (text[first] != '~' || text.find_first_not_of(" \t\r\n", first + 1) != std::string_view::npos);
}

const std::vector<KnownName> &DesignFields::known() const
{
    if (!m_known.empty()) {
        return m_known;
    }
    m_known.reserve(m_design.names().size());
    for (NameId id = 0; id < m_design.names().size(); ++id) {
        m_known.push_back(m_names->known(designs::nameFromUtf8(m_design.names().name(id))));
        m_known.back().isOwn |= id == m_design.referenceName() || id == m_design.valueName();
    }
    return m_known;
}

const FieldSense &DesignFields::senseOf(NameId id) const
{
    return known()[id].sense;
}

std::optional<std::size_t> DesignFields::rank(const QByteArray &asked, const QByteArray &other) const
{
    if (!m_names) {
        return std::nullopt;
    }
    const KnownName name = m_names->known(textOf(asked));
    const bool isOwnOnly =
        !m_names->hasKnownMeaning(name) && !m_design.names().candidates(asked.toStdString()).empty();
    return isOwnOnly ? std::nullopt : m_names->rank(name, m_names->known(textOf(other)));
}

std::vector<NameId> DesignFields::sameMeaning(const QByteArray &asked, const std::vector<NameId> &found) const
{
    if (!m_names || FieldNames::isExact(textOf(asked))) {
        return {};
    }
    const KnownName name = m_names->known(textOf(asked));
    if (!found.empty() && !m_names->hasKnownMeaning(name)) {
        return {};
    }
    const std::unordered_set<NameId> own(found.begin(), found.end());
    std::vector<std::pair<std::size_t, NameId>> same;
    for (NameId id = 0; id < known().size(); ++id) {
        const auto rank = m_names->rank(name, m_known[id]);
        if (rank && !own.contains(id)) {
            same.emplace_back(*rank, id);
        }
    }
    std::sort(same.begin(), same.end());
    std::vector<NameId> ids;
    std::transform(same.begin(), same.end(), std::back_inserter(ids),
                   [](const auto &ranked) { return ranked.second; });
    return ids;
}

std::vector<NameId> DesignFields::proposed(const QByteArray &asked) const
{
    if (!m_names || FieldNames::isExact(textOf(asked))) {
        return {};
    }
    const KnownName name = m_names->known(textOf(asked));
    std::vector<NameId> ids;
    for (NameId id = 0; name.sense.meaning && id < known().size(); ++id) {
        const std::vector<std::size_t> &may = m_known[id].sense.proposed;
        if (!m_known[id].isOwn && m_known[id].plain != name.plain &&
            std::find(may.begin(), may.end(), *name.sense.meaning) != may.end()) {
            ids.push_back(id);
        }
    }
    return ids;
}

NameId DesignFields::commonest(const std::vector<NameId> &ids) const
{
    if (m_counts.empty()) {
        m_counts.resize(m_design.names().size(), 0);
        for (const designs::Component &component : m_design.components()) {
            for (const designs::Property &property : component.properties) {
                m_counts[property.name] += isFilled(property.value) ? 1 : 0;
            }
        }
    }
    return *std::max_element(ids.begin(), ids.end(),
                             [this](NameId a, NameId b) { return m_counts[a] < m_counts[b]; });
}
