// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <QtGlobal>

#include <vector>

/// Finds numbered things by their hash. The things stay with the caller, who compares them; a slot costs
/// eight bytes. Nothing that people see may depend on the order in here.
class HashIndex final
{
public:
    static constexpr quint32 None = 0xffffffff;

    /// The number under which a thing with that hash was inserted and for which `isSame` holds, or None.
    template<typename IsSame>
    [[nodiscard]] quint32 find(quint64 hash, IsSame &&isSame) const
    {
        if (m_slots.empty()) {
            return None;
        }
        const auto tag = quint32(hash >> 32);
        for (size_t at = tag & m_mask;; at = (at + 1) & m_mask) {
            const Slot &slot = m_slots[at];
            if (slot.number == None) {
                return None;
            }
            if (slot.tag == tag && isSame(slot.number)) {
                return slot.number;
            }
        }
    }

    /// Inserts a thing that is not there yet.
    void insert(quint64 hash, quint32 number);
    /// Makes room for that many things.
    void reserve(size_t count);
    void clear();

private:
    struct Slot
    {
        quint32 tag = 0;
        quint32 number = None;
    };

    void resize(size_t slotCount);
    void place(Slot slot);

    std::vector<Slot> m_slots;
    size_t m_mask = 0;
    size_t m_count = 0;
};

/// Hashes for tables inside the process: fast on short texts, different from run to run unless Qt's hash seed
/// is fixed.
[[nodiscard]] quint64 hashBytes(const void *data, size_t size, quint64 seed = 0);
[[nodiscard]] quint64 hashNumber(quint64 number, quint64 seed = 0);
[[nodiscard]] quint64 hashText(QStringView text, Qt::CaseSensitivity caseRule = Qt::CaseSensitive);
