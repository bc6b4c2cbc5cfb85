// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/pendingedits.h"
#include "core/pendingjournal.h"

#include <QList>
#include <QString>

#include <map>
#include <memory>
#include <optional>

class BOMPartsDatabase;

/// What came of some changes of edits, the edits as they were and as they are: each is in one list or in
/// both.
struct EditChanges
{
    QList<PendingEdit> before;
    QList<PendingEdit> after;

    [[nodiscard]] bool isEmpty() const { return before.isEmpty() && after.isEmpty(); }
};

/// The pending edits of each design that was open, with their journals. Those of the design that is open are
/// the current ones.
class PendingDesigns final
{
public:
    /// The database must outlive the object.
    explicit PendingDesigns(const BOMPartsDatabase *database)
        : m_database(database)
    {
    }

    /// For designs that are opened from now on; empty keeps no journal.
    void setJournalFolder(const QString &folder) { m_journalFolder = folder; }

    /// What the database that has loaded changed.
    enum class Followed
    {
        Nothing,
        Edits,
        /// Another design is open, and other edits are the current ones.
        Design
    };
    /// Has the edits follow their parts when the database has loaded since the last call.
    Followed follow();

    /// Null before the first follow().
    [[nodiscard]] PendingEdits *current() { return m_current ? &m_current->edits : nullptr; }
    [[nodiscard]] const PendingEdits *current() const { return m_current ? &m_current->edits : nullptr; }
    /// What an earlier run left of the design that is open.
    [[nodiscard]] QList<PendingEdit> earlier() const;
    /// See PendingJournal::unreadable().
    [[nodiscard]] QString unreadableJournal() const
    {
        return m_current ? m_current->journal.unreadable() : QString();
    }
    /// The designs whose edits wait: those that were open in this run, and what programs that have ended left
    /// in the journal's folder. Sorted by their files.
    [[nodiscard]] QList<UnwrittenDesign> unwritten() const;
    /// Forgets them; the journal then has what is pending.
    void clearEarlier();

    /// To be called before the edit of that key changes.
    void touch(const EditKey &key);
    /// Writes what was touched since the last call into the journal.
    EditChanges endChanges();
    /// Why the journal could not be written; empty when it was.
    [[nodiscard]] const QString &journalError() const { return m_journalError; }

private:
    struct OfDesign
    {
        OfDesign(const BOMPartsDatabase *database, const QString &folder, const EditedDesign &design);

        PendingEdits edits;
        PendingJournal journal;
        QList<PendingEdit> earlier;
    };

    void open(const EditedDesign &design);
    void record(const EditChanges &changes);
    [[nodiscard]] QList<PendingEdit> all() const;

    const BOMPartsDatabase *m_database;
    QString m_journalFolder;
    std::map<EditedDesign, std::unique_ptr<OfDesign>> m_designs;
    EditedDesign m_design;
    OfDesign *m_current = nullptr;
    /// Of the database, when the edits followed their parts.
    quint64 m_generation = 0;
    /// Edits as they were, by what they are about.
    std::map<EditKey, std::optional<PendingEdit>> m_touched;
    QString m_journalError;
};
