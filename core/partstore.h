// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompart.h"
#include "core/hashindex.h"
#include "core/part.h"
#include "core/texttable.h"

#include <QStringList>
#include <QStringView>

#include <deque>
#include <memory>
#include <span>
#include <vector>

/// The parts of a database, each reference once, found by reference and known in the order in which they
/// came.
class PartStore final
{
public:
    explicit PartStore(const PartDatabase *database)
        : m_database(database)
    {
    }

    /// Makes room for that many more parts.
    void reserve(size_t count);

    /// Makes a part of a component. Null when its reference is held already; it is then a duplicate.
    Part *add(const COMPONENT &component, const QString &reference);
    /// Takes a part. Null, and the part is gone, when its reference is held already; it is then a duplicate.
    BOMPart *add(std::unique_ptr<BOMPart> part);
    /// Gives a part another value and other properties, by upper-case name.
    void change(BOMPart *part, const QString &value, const QMap<QString, QString> &properties);
    /// Marks a part of the store, see Part::isNotFitted().
    void markNotFitted(Part *part);
    /// Of a BOM-only part that its parent makes one: it shows what the parent says.
    void markNotFittedWithParent(BOMPart *part);
    /// Whether any part was marked.
    [[nodiscard]] bool hasNotFitted() const { return m_hasNotFitted; }
    /// Lets go of a part. Takes time in proportion to all parts that are held.
    void remove(const BOMPart *part);

    /// To be called when all components were added: their bytes are not compared any more and may go.
    void endLoading() { m_values.forgetHostTexts(); }
    void clear();

    [[nodiscard]] Part *find(QStringView reference) const;
    [[nodiscard]] std::span<Part *const> parts() const { return m_parts; }
    /// References that came again, once per extra occurrence.
    [[nodiscard]] const QStringList &duplicates() const { return m_duplicates; }

    /// A number that orders parts as their references do. Adding a part may change the numbers of others.
    [[nodiscard]] quint64 orderKey(const Part &part) const
    {
        return quint64(prefixRanks()[part.key().prefix]) << 32 | quint32(part.key().number);
    }

    /// The prefixes of the references, by the numbers in the keys of the parts.
    [[nodiscard]] const TextTable &prefixes() const { return m_prefixes; }

private:
    [[nodiscard]] quint32 indexOf(quint64 hash, QStringView reference) const;
    [[nodiscard]] const std::vector<quint32> &prefixRanks() const;
    void insert(quint64 hash, Part *part, quint32 value);
    [[nodiscard]] quint32 prefixNumber(QStringView prefix);

    const PartDatabase *m_database;
    std::deque<Part> m_placed;
    std::vector<std::unique_ptr<BOMPart>> m_unplaced;
    std::vector<Part *> m_parts;
    QStringList m_duplicates;
    HashIndex m_index;
    TextTable m_prefixes;
    TextTable m_values;
    quint32 m_lastPrefix = 0;
    bool m_hasNotFitted = false;
    mutable std::vector<quint32> m_prefixRanks;
};
