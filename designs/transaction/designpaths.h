// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <mutex>

namespace designs {

/// Where the files lie that belong to writing one design. All paths are absolute and, but for
/// named(), without symbolic links.
class DesignPaths final
{
public:
    /// `members` are the files that the design consists of, as it was read; the design itself is always one.
    explicit DesignPaths(const QString &design, const QStringList &members = {});

    [[nodiscard]] const QString &design() const { return m_design; }
    /// The design as it was named, symbolic links kept.
    [[nodiscard]] const QString &named() const { return m_named; }
    [[nodiscard]] const QString &folder() const { return m_folder; }
    /// What an interrupted write left to do.
    [[nodiscard]] QString journal() const;
    /// The designs beside which a journal stands in a folder.
    [[nodiscard]] static QStringList designsWithJournals(const QString &folder);
    /// The journal before it counts.
    [[nodiscard]] QString newJournal() const;
    [[nodiscard]] QString lock() const;
    [[nodiscard]] QString backupFolder() const;
    /// What undo() takes back.
    [[nodiscard]] QString record() const;
    /// The backup of a file of the design; different for each.
    [[nodiscard]] QString backupOf(const QString &target) const;

    /// A path as it stands in journal and record, so that both still hold when the folder is moved.
    [[nodiscard]] QString relative(const QString &path) const;
    /// The reverse. Empty for what is no path of relative(), or leads over a symbolic link.
    [[nodiscard]] QString resolved(const QString &path) const;
    /// Whether a file may be written as one of this design: it lies in or below its folder or, elsewhere, is
    /// of the same kind.
    [[nodiscard]] bool mayHold(const QString &target) const;
    /// Whether a file is one that the design consists of. Journal and record are believed for no others: they
    /// may have come with the folder from somewhere.
    [[nodiscard]] bool isMember(const QString &target) const;

private:
    QString m_named;
    QString m_design;
    QString m_folder;
    QString m_name;
    QStringList m_members;
    /// Without symbolic links; filled at the first question, which several threads may ask.
    mutable QSet<QString> m_targets;
    mutable std::once_flag m_hasTargets;
};

/// The folder that a path lies in.
[[nodiscard]] QString folderOf(const QString &path);

} // namespace designs
