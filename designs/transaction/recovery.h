// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/filetransaction.h"

#include <optional>

namespace designs {

/// Completes or takes back an interrupted transaction, so that all its files are old or all are new. A file
/// that somebody changed in between is left alone; where neither way is open nothing is touched.
class Recovery final
{
public:
    Recovery(FileOperations &files, const DesignPaths &paths)
        : m_files(files)
        , m_paths(paths)
    {
    }

    /// Whether there is anything to look at; needs no lock.
    [[nodiscard]] bool isNeeded();
    /// Whether there is a transaction that has begun and not ended.
    [[nodiscard]] bool hasJournal();

    struct Result
    {
        /// Whether no interrupted transaction is left; otherwise the problems of the file operations say why.
        bool isResolved = false;
        /// Whether no file is still to be replaced or restored: the files belong together.
        bool isSettled = false;
        /// What was done, and which files were left alone.
        std::vector<Problem> actions;
    };
    /// With the lock taken.
    [[nodiscard]] Result run();
    /// Without the lock, which cannot be had: only tells what the files hold, as problems.
    [[nodiscard]] Result look();

private:
    enum class Way
    {
        Complete,
        TakeBack,
        None
    };

    [[nodiscard]] std::optional<Journal> readJournal();
    void resolveAny(Result *result);
    bool resolve(FileTransaction &transaction);
    bool complete(FileTransaction &transaction);
    bool takeBack(FileTransaction &transaction);
    bool giveUp();
    [[nodiscard]] bool checkNotOpen(const Journal &journal);
    [[nodiscard]] Way wayFor(FileTransaction &transaction);
    [[nodiscard]] bool canComplete(FileTransaction &transaction, const JournalEntry &entry);
    [[nodiscard]] bool isKnownHere(const JournalEntry &entry) const;
    [[nodiscard]] bool canTakeBack(FileTransaction &transaction, const JournalEntry &entry);
    void noteAction(const QString &file, const QString &text) { m_actions.push_back({file, 0, text}); }

    FileOperations &m_files;
    const DesignPaths &m_paths;
    std::vector<Problem> m_actions;
};

} // namespace designs
