// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/partstore.h"

#include "core/reference.h"
#include "host/netlist/component.h"

#include <algorithm>
#include <numeric>

void PartStore::reserve(size_t count)
{
    m_parts.reserve(m_parts.size() + count);
    m_index.reserve(m_parts.size() + count);
}

Part *PartStore::add(const COMPONENT &component, const QString &reference)
{
    const quint64 hash = hashText(reference);
    if (indexOf(hash, reference) != HashIndex::None) {
        m_duplicates.append(reference);
        return nullptr;
    }
    const quint32 value = m_values.hostNumber(component.value);
    insert(hash, &m_placed.emplace_back(&component, m_database, reference, m_values.text(value)), value);
    return m_parts.back();
}

BOMPart *PartStore::add(std::unique_ptr<BOMPart> part)
{
    const quint64 hash = hashText(part->reference());
    if (indexOf(hash, part->reference()) != HashIndex::None) {
        m_duplicates.append(part->reference());
        return nullptr;
    }
    insert(hash, part.get(), m_values.number(part->value()));
    return m_unplaced.emplace_back(std::move(part)).get();
}

void PartStore::change(BOMPart *part, const QString &value, const QMap<QString, QString> &properties)
{
    part->m_value = value;
    part->m_key.value = m_values.number(value);
    part->m_properties = properties;
}

void PartStore::markNotFitted(Part *part)
{
    part->m_isNotFitted = true;
    m_hasNotFitted = true;
}

void PartStore::markNotFittedWithParent(BOMPart *part)
{
    part->m_isNotFittedWithParent = true;
    markNotFitted(part);
}

void PartStore::remove(const BOMPart *part)
{
    std::erase(m_parts, part);
    m_index.clear();
    m_index.reserve(m_parts.size());
    for (size_t i = 0; i < m_parts.size(); ++i) {
        m_index.insert(hashText(m_parts[i]->reference()), quint32(i));
    }
    std::erase_if(m_unplaced, [part](const std::unique_ptr<BOMPart> &held) { return held.get() == part; });
}

void PartStore::clear()
{
    m_parts = {};
    m_duplicates.clear();
    m_index.clear();
    m_placed.clear();
    m_unplaced.clear();
    m_prefixes.clear();
    m_values.clear();
    m_prefixRanks.clear();
    m_lastPrefix = 0;
    m_hasNotFitted = false;
}

Part *PartStore::find(QStringView reference) const
{
    const quint32 index = indexOf(hashText(reference), reference);
    return index == HashIndex::None ? nullptr : m_parts[index];
}

quint32 PartStore::indexOf(quint64 hash, QStringView reference) const
{
    return m_index.find(hash, [&](quint32 index) { return m_parts[index]->reference() == reference; });
}

const std::vector<quint32> &PartStore::prefixRanks() const
{
    if (m_prefixRanks.size() == m_prefixes.size()) {
        return m_prefixRanks;
    }
    std::vector<quint32> sorted(m_prefixes.size());
    std::iota(sorted.begin(), sorted.end(), 0U);
    std::sort(sorted.begin(), sorted.end(),
              [this](quint32 left, quint32 right) { return m_prefixes.text(left) < m_prefixes.text(right); });
    m_prefixRanks.resize(sorted.size());
    for (size_t rank = 0; rank < sorted.size(); ++rank) {
        m_prefixRanks[sorted[rank]] = quint32(rank);
    }
    return m_prefixRanks;
}

void PartStore::insert(quint64 hash, Part *part, quint32 value)
{
    const SplitReference split = splitReference(part->reference());
    part->m_key = {prefixNumber(split.prefix), value, split.number};
    m_index.insert(hash, quint32(m_parts.size()));
    m_parts.push_back(part);
}

quint32 PartStore::prefixNumber(QStringView prefix)
{
    // Components mostly come in runs of one prefix.
    if (m_lastPrefix >= m_prefixes.size() || m_prefixes.text(m_lastPrefix) != prefix) {
        m_lastPrefix = m_prefixes.number(prefix);
    }
    return m_lastPrefix;
}
