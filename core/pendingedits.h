// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/partidentities.h"
#include "core/pendingedit.h"
#include "core/propertyquery.h"

#include <QHash>
#include <QList>
#include <QString>

#include <map>
#include <optional>
#include <tuple>
#include <vector>

class BOMPartsDatabase;
class Part;

/// What one edit is about; a design has at most one edit of it.
struct EditKey
{
    PartIdentity part;
    QString property;

    [[nodiscard]] static EditKey of(const PendingEdit &edit) { return {edit.part, edit.property}; }

    bool operator==(const EditKey &) const = default;
    /// Some order, for maps.
    bool operator<(const EditKey &other) const
    {
        return std::tie(part, property) < std::tie(other.part, other.property);
    }
};

/// A BOM-only part that an edit is about; null where there is none.
struct EditedPart
{
    EditKey key;
    const Part *part = nullptr;
};

/// What an edit is about when its part is known by something else.
struct EditMove
{
    EditKey from;
    PartIdentity to;
};

/// The pending edits of one design, found by what they are about and by the references of their parts.
class PendingEdits final
{
public:
    /// The database must outlive the edits.
    explicit PendingEdits(const BOMPartsDatabase *database);
    PendingEdits(const PendingEdits &) = delete;
    PendingEdits &operator=(const PendingEdits &) = delete;

    /// An edit against what the design holds now.
    [[nodiscard]] PendingEdit made(const QString &reference, const QString &property, const QString &value);
    /// The edit as it is at present: where its part is and whether it is in conflict.
    [[nodiscard]] PendingEdit followed(PendingEdit edit);

    void insert(const PendingEdit &edit);
    void remove(const EditKey &key);
    void clear();

    [[nodiscard]] bool isEmpty() const { return m_edits.empty(); }
    [[nodiscard]] qsizetype size() const { return qsizetype(m_edits.size()); }
    /// Null when there is none.
    [[nodiscard]] const PendingEdit *find(const EditKey &key) const;
    /// Only of parts that are in the bill.
    [[nodiscard]] const PendingEdit *find(const QString &reference, const QString &property) const;
    [[nodiscard]] bool has(const QString &reference) const { return m_byReference.contains(reference); }
    /// By the references of their parts, then by properties.
    [[nodiscard]] QList<PendingEdit> list() const;

    /// To be called when the database has loaded: the edits follow their parts. True when that changed any.
    bool follow();
    [[nodiscard]] const PartIdentities &identities() const { return m_identities; }

    /// The BOM-only parts that the edits are about.
    [[nodiscard]] std::vector<EditedPart> definedParts(const QList<PendingEdit> &edits) const;
    /// Where their edits go, to be called when the database has changed what defines them.
    [[nodiscard]] QList<EditMove> movesOf(const std::vector<EditedPart> &parts);
    /// Where edits go when a BOM-only part is removed: those of the parts behind it in its definition.
    [[nodiscard]] QList<EditMove> movesBehind(const PartIdentity &removed) const;

private:
    [[nodiscard]] const PropertyQuery &query(const QString &property);
    /// Whether writing the edit would leave the design as it is.
    [[nodiscard]] bool isDone(const PendingEdit &edit) const;
    void index();

    const BOMPartsDatabase *m_database;
    PartIdentities m_identities;
    std::map<EditKey, PendingEdit> m_edits;
    /// By reference and property. Nodes of the map stay where they are.
    QHash<QString, QHash<QString, const PendingEdit *>> m_byReference;
    std::map<QString, PropertyQuery> m_queries;
};
