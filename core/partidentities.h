// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/pendingedit.h"

#include <QHash>
#include <QPair>
#include <QString>

class BOMPart;
class BOMPartsDatabase;
class Part;
struct COMPONENT;

/// The identities of the parts of a database, worked out when they are asked for.
class PartIdentities final
{
public:
    /// The database must outlive the object.
    explicit PartIdentities(const BOMPartsDatabase *database)
        : m_database(database)
    {
    }

    /// To be called when the database has loaded, or has changed what defines BOM-only parts.
    void reset();

    [[nodiscard]] PartIdentity of(const Part &part) const;
    /// Of what no part of the database has: it stands for the reference.
    [[nodiscard]] static PartIdentity ofReference(const QString &reference);

    /// Where a part is now.
    struct Place
    {
        /// Null unless the part is in the bill.
        const Part *part = nullptr;
        /// PartLeftOut, PartGone, or None for a part that is in the bill.
        EditConflict state = EditConflict::PartGone;
    };
    /// `reference` is the one that the part had last, which mostly saves a search.
    [[nodiscard]] Place find(const PartIdentity &identity, const QString &reference) const;

private:
    /// The BOM-only parts of one parent.
    struct Defined
    {
        QHash<const Part *, PartIdentity> identities;
        QHash<QPair<QString, int>, const BOMPart *> parts;
    };

    [[nodiscard]] QByteArray ofComponent(const COMPONENT &component) const;
    [[nodiscard]] Place findComponent(const QByteArray &component, const QString &reference) const;
    [[nodiscard]] Place findDefined(const PartIdentity &identity, const Part &parent) const;
    [[nodiscard]] const Defined &definedBy(const QString &parentReference) const;

    const BOMPartsDatabase *m_database;
    mutable QHash<QString, Defined> m_defined;
    /// All components of the netlist, the first one of each identity; filled when one has to be searched.
    mutable QHash<QByteArray, const COMPONENT *> m_components;
};
