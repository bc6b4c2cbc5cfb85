// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/instancetable.h"

#include <bit>
#include <functional>

namespace designs::kicad {

namespace {

quint64 hashOf(std::string_view path)
{
    return std::hash<std::string_view>()(path);
}

} // namespace

InstanceTable::InstanceTable(const std::vector<TableInstance> &entries)
    : m_entries(&entries)
    , m_slots(std::bit_ceil(2 * entries.size() + 1))
{
    for (quint32 number = 0; number < entries.size(); ++number) {
        const quint64 hash = hashOf(entries[number].path);
        Slot &slot = m_slots[slotOf(entries[number].path, hash)];
        if (slot.entry == 0) {
            slot = {quint32(hash >> 32), number + 1};
        }
    }
}

std::size_t InstanceTable::slotOf(std::string_view path, quint64 hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    const auto tag = quint32(hash >> 32);
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot &slot = m_slots[at];
        if (slot.entry == 0 || (slot.tag == tag && (*m_entries)[slot.entry - 1].path == path)) {
            return at;
        }
    }
}

const TableInstance *InstanceTable::find(std::string_view path) const
{
    const Slot &slot = m_slots[slotOf(path, hashOf(path))];
    return slot.entry == 0 ? nullptr : &(*m_entries)[slot.entry - 1];
}

} // namespace designs::kicad
