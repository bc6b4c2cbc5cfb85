// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/filetransaction.h"

namespace designs {

/// Completes or takes back what an interrupted write left.
class Recovery final
{
public:
    Recovery(FileWork &work, const DesignPaths &paths)
        : m_work(work)
        , m_paths(paths)
    {
    }

    /// Whether there is anything to look at; needs no lock.
    [[nodiscard]] bool isNeeded();
    /// Whether there is a write that has begun and not ended.
    [[nodiscard]] bool isWaiting();

    /// With the lock taken. False when an interrupted write stays; the work's problems tell why. What was
    /// done is told in report().
    bool run();

    [[nodiscard]] const std::vector<Problem> &report() const { return m_report; }

private:
    enum class Way
    {
        Forward,
        Back,
        Neither
    };

    bool resolve(FileTransaction &transaction);
    bool complete(FileTransaction &transaction);
    bool takeBack(FileTransaction &transaction);
    bool giveUp(FileTransaction &transaction);
    [[nodiscard]] bool checkNotOpen(const Journal &journal);
    [[nodiscard]] Way wayFor(FileTransaction &transaction);
    [[nodiscard]] bool canComplete(FileTransaction &transaction, const JournalEntry &entry);
    [[nodiscard]] bool canTakeBack(FileTransaction &transaction, const JournalEntry &entry);
    void tell(const QString &file, const QString &text) { m_report.push_back({file, 0, text}); }

    FileWork &m_work;
    const DesignPaths &m_paths;
    std::vector<Problem> m_report;
};

} // namespace designs
