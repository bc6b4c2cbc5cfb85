// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/hashindex.h"

#include <QChar>
#include <QHashFunctions>

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

constexpr size_t smallestTable = 16;

/// Both halves of the product count, so that what collides is not predictable from run to run.
quint64 multiplied(quint64 left, quint64 right)
{
    __extension__ using Wide = unsigned __int128;
    const Wide product = Wide(left) * right;
    return quint64(product) ^ quint64(product >> 64);
}

struct Secrets
{
    quint64 text = 0;
    quint64 state = 0;
};

const Secrets &secrets()
{
    static const Secrets made = [] {
        const auto seed = quint64(size_t(QHashSeed::globalSeed()));
        const quint64 text = multiplied(seed ^ 0x2d358dccaa6c78a5, 0x8bb84b93962eacc9);
        return Secrets{text, multiplied(text ^ 0x4b33a62ed433d4a3, seed ^ 0x4d5a2da51de1aa47)};
    }();
    return made;
}

quint64 mixed(quint64 hash, quint64 word)
{
    return multiplied(word ^ secrets().text, hash ^ secrets().state);
}

quint64 finished(quint64 hash)
{
    return multiplied(hash ^ secrets().text, 0x9fb21c651e98df25);
}

/// What a text is compared by when letter case does not count; pairs of surrogates are one character.
char32_t folded(QStringView text, qsizetype at)
{
    const char16_t unit = text.utf16()[at];
    if (unit < 0x80) {
        return unit >= u'A' && unit <= u'Z' ? unit + 32 : unit;
    }
    if (QChar::isLowSurrogate(unit) && at > 0 && text[at - 1].isHighSurrogate()) {
        return QChar::toCaseFolded(QChar::surrogateToUcs4(text.utf16()[at - 1], unit));
    }
    return QChar::toCaseFolded(char32_t(unit));
}

} // namespace

void HashIndex::insert(quint64 hash, quint32 number)
{
    if ((m_count + 1) * 2 > m_slots.size()) {
        resize(std::max(smallestTable, m_slots.size() * 2));
    }
    place({quint32(hash >> 32), number});
    ++m_count;
}

void HashIndex::reserve(size_t count)
{
    const size_t wanted = std::bit_ceil(std::max(smallestTable, count * 2));
    if (wanted > m_slots.size()) {
        resize(wanted);
    }
}

void HashIndex::clear()
{
    m_slots = {};
    m_mask = 0;
    m_count = 0;
}

void HashIndex::resize(size_t slotCount)
{
    std::vector<Slot> old(slotCount);
    old.swap(m_slots);
    m_mask = slotCount - 1;
    for (const Slot &slot : old) {
        if (slot.number != None) {
            place(slot);
        }
    }
}

void HashIndex::place(Slot slot)
{
    size_t at = slot.tag & m_mask;
    while (m_slots[at].number != None) {
        at = (at + 1) & m_mask;
    }
    m_slots[at] = slot;
}

quint64 hashBytes(const void *data, size_t size, quint64 seed)
{
    const char *at = static_cast<const char *>(data);
    quint64 hash = mixed(seed, size);
    quint64 word = 0;
    for (; size >= sizeof word; size -= sizeof word, at += sizeof word) {
        std::memcpy(&word, at, sizeof word);
        hash = mixed(hash, word);
    }
    if (size > 0) {
        word = 0;
        std::memcpy(&word, at, size);
        hash = mixed(hash, word);
    }
    return finished(hash);
}

quint64 hashNumber(quint64 number, quint64 seed)
{
    return finished(mixed(seed, number));
}

quint64 hashText(QStringView text, Qt::CaseSensitivity caseRule)
{
    if (caseRule == Qt::CaseSensitive) {
        return hashBytes(text.utf16(), size_t(text.size()) * sizeof(char16_t));
    }
    quint64 hash = mixed(0, quint64(text.size()));
    for (qsizetype at = 0; at < text.size(); ++at) {
        hash = mixed(hash, folded(text, at));
    }
    return finished(hash);
}
