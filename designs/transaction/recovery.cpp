// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/recovery.h"

#include "designs/texts.h"
#include "designs/transaction/kicadlock.h"

#include <algorithm>

namespace designs {

bool Recovery::isNeeded()
{
    return hasJournal() || m_files.exists(m_paths.newJournal()) || m_files.exists(m_paths.lock());
}

bool Recovery::hasJournal()
{
    return m_files.exists(m_paths.journal());
}

Recovery::Result Recovery::run()
{
    Result result;
    resolveAny(&result);
    result.isSettled = result.isSettled || result.isResolved;
    result.actions = std::move(m_actions);
    return result;
}

void Recovery::resolveAny(Result *result)
{
    FileStatus found;
    if (!m_files.readStatus(m_paths.journal(), &found)) {
        return;
    }
    // A journal that did not get its name yet is of a transaction that has not begun.
    if (found.kind == FileStatus::Kind::Missing) {
        result->isResolved = m_files.removeIfThere(m_paths.newJournal());
        result->isSettled = true;
        return;
    }
    std::optional<Journal> journal = readJournal();
    if (!journal) {
        return;
    }
    FileTransaction transaction(m_files, m_paths, std::move(*journal));
    result->isResolved = resolve(transaction);
    result->isSettled = result->isResolved || transaction.isSettled();
    if (!result->isSettled) {
        m_files.add(transaction.states());
    }
}

Recovery::Result Recovery::look()
{
    std::optional<Journal> journal = readJournal();
    if (!journal) {
        return {};
    }
    FileTransaction transaction(m_files, m_paths, std::move(*journal));
    if (transaction.isSettled()) {
        return {false, true, {}};
    }
    m_files.fail(m_paths.design(), WriteTexts::tr("was being written when that was interrupted, which can "
                                                  "now be neither completed nor taken back"));
    m_files.add(transaction.states());
    return {};
}

std::optional<Journal> Recovery::readJournal()
{
    QString why;
    std::optional<Journal> journal = Journal::read(m_paths, &why);
    if (!journal) {
        m_files.fail(m_paths.journal(),
                     WriteTexts::tr("tells of an interrupted write, but cannot be used: %1. Nothing was "
                                    "touched. Check the files of the design, then "
                                    "delete this one")
                         .arg(why));
    }
    return journal;
}

bool Recovery::resolve(FileTransaction &transaction)
{
    const Journal &journal = transaction.journal();
    // Where a file holds its new content all the same, the journal is not as it was written.
    if (journal.state == Journal::State::Preparing && transaction.isSettled()) {
        noteAction(m_paths.design(),
                   WriteTexts::tr("a write was interrupted before it changed any file: what it "
                                  "had prepared was removed"));
        return transaction.discard();
    }
    if (!checkNotOpen(journal)) {
        return false;
    }
    // Some files may be restored already: completing would mix old and new.
    if (journal.state == Journal::State::TakingBack) {
        return takeBack(transaction);
    }
    switch (wayFor(transaction)) {
    case Way::Complete:
        return complete(transaction);
    case Way::TakeBack:
        return takeBack(transaction);
    case Way::None:
        break;
    }
    return giveUp();
}

bool Recovery::complete(FileTransaction &transaction)
{
    for (const JournalEntry &entry : transaction.journal().entries) {
        if (transaction.isPlaced(entry) && fingerprintOfPlainFile(entry.target) != entry.after) {
            noteAction(entry.target,
                       WriteTexts::tr("was changed after an interrupted write had replaced it: it was "
                                      "left as it is now"));
        }
    }
    if (!transaction.place() || !transaction.finish()) {
        return false;
    }
    noteAction(m_paths.design(), WriteTexts::tr("an interrupted write was completed"));
    return true;
}

bool Recovery::takeBack(FileTransaction &transaction)
{
    for (const JournalEntry &entry : transaction.journal().entries) {
        const auto now = fingerprintOfPlainFile(entry.target);
        if (now != entry.after && now != entry.before) {
            noteAction(entry.target,
                       WriteTexts::tr("was changed while a write was interrupted: it was left as it "
                                      "is now"));
        }
    }
    if (!transaction.takeBack()) {
        return false;
    }
    noteAction(m_paths.design(),
               WriteTexts::tr("an interrupted write was taken back: none of its changes is in the "
                              "files, make them again"));
    return true;
}

/// Some files are new, some are old, and neither way is open to all: the user must decide.
bool Recovery::giveUp()
{
    return m_files.fail(m_paths.design(),
                        WriteTexts::tr("a write was interrupted and files were changed since, so that it can "
                                       "neither be completed nor taken back. Nothing was touched. Bring the "
                                       "files named here into order, then delete %1")
                            .arg(m_paths.journal()));
}

bool Recovery::checkNotOpen(const Journal &journal)
{
    QStringList paths{m_paths.named(), m_paths.design()};
    for (const JournalEntry &entry : journal.entries) {
        paths << entry.target;
    }
    paths.removeDuplicates();
    bool closed = true;
    for (const QString &path : std::as_const(paths)) {
        if (const auto who = openElsewhere(path)) {
            closed =
                m_files.fail(path, WriteTexts::tr("a write was interrupted, but this file %1").arg(*who));
        }
    }
    if (const auto open = openFromAbove(paths); open && closed) {
        closed = m_files.fail(open->file,
                              WriteTexts::tr("a write was interrupted, but this file %1").arg(open->text));
    }
    return closed;
}

/// Completing comes first: the commit point promised it. Taking back is for a file that was changed before it
/// was replaced.
Recovery::Way Recovery::wayFor(FileTransaction &transaction)
{
    const auto &entries = transaction.journal().entries;
    if (std::ranges::all_of(entries, [&](const auto &entry) { return canComplete(transaction, entry); }) &&
        std::ranges::any_of(entries, [&](const auto &entry) { return isKnownHere(entry); })) {
        return Way::Complete;
    }
    const bool back =
        std::ranges::all_of(entries, [&](const auto &entry) { return canTakeBack(transaction, entry); });
    return back ? Way::TakeBack : Way::None;
}

bool Recovery::canComplete(FileTransaction &transaction, const JournalEntry &entry)
{
    const auto now = fingerprintOfPlainFile(entry.target);
    if (transaction.isPlaced(entry)) {
        return now == entry.after || now != entry.before;
    }
    return (now == entry.before || now == entry.after) &&
           fingerprintOfPlainFile(entry.prepared) == entry.after;
}

/// Where no file holds what the journal says, it may have come with the folder from somewhere: that all files
/// were replaced, and changed since, is not to be believed then.
bool Recovery::isKnownHere(const JournalEntry &entry) const
{
    return fingerprintOfPlainFile(entry.target) == entry.after ||
           fingerprintOfPlainFile(entry.prepared) == entry.after ||
           fingerprintOfPlainFile(entry.saved) == entry.before ||
           fingerprintOfPlainFile(m_paths.backupOf(entry.target)) == entry.before;
}

bool Recovery::canTakeBack(FileTransaction &transaction, const JournalEntry &entry)
{
    const auto now = fingerprintOfPlainFile(entry.target);
    if (!transaction.isPlaced(entry) || now == entry.before) {
        return true;
    }
    return now == entry.after && fingerprintOfPlainFile(entry.saved) == entry.before;
}

} // namespace designs
