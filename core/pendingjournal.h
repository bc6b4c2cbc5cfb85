// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/pendingedits.h"

#include <QList>
#include <QLockFile>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <vector>

/// The file that keeps the pending edits of one design over the end of the program, whatever ends it: one
/// JSON object a line, added to at each change. Each program that has the design open has a file of its own.
class PendingJournal final
{
public:
    /// Finds the file of a design, which need not exist; an empty folder keeps no journal.
    PendingJournal(const QString &folder, const EditedDesign &design);
    PendingJournal(const PendingJournal &) = delete;
    PendingJournal &operator=(const PendingJournal &) = delete;
    ~PendingJournal();

    /// What the file holds, and those of programs that did not end well, the edits as they were when they
    /// were written. A line that is none is passed over: the last one may be cut off.
    [[nodiscard]] QList<PendingEdit> read() const;

    /// Adds to the file what has changed, and has the system put it on the disk. `count` is how many edits
    /// there are then and `all` makes a list of them; without any the file goes. False when that failed,
    /// error() says why.
    [[nodiscard]] bool record(const QList<EditKey> &gone, const QList<PendingEdit> &come, qsizetype count,
                              const std::function<QList<PendingEdit>()> &all);
    [[nodiscard]] const QString &error() const { return m_error; }
    /// A file that should be one of this design's and cannot be read, of a later version for instance. It is
    /// left as it is. Empty when there is none.
    [[nodiscard]] const QString &unreadable() const { return m_unreadable; }

    /// The designs that have journals with edits in a folder, sorted by their files. Journals that a running
    /// program, this one included, has in use are passed over.
    [[nodiscard]] static QList<UnwrittenDesign> unwrittenIn(const QString &folder);

private:
    struct File
    {
        QString path;
        std::unique_ptr<QLockFile> lock;
    };

    [[nodiscard]] bool append(const QByteArray &lines);
    [[nodiscard]] bool rewrite(const QList<PendingEdit> &all);
    [[nodiscard]] bool fail(const QString &reason);

    EditedDesign m_design;
    File m_file;
    /// What programs left that had the design open beside another one; their edits go into the own file.
    std::vector<File> m_others;
    QString m_error;
    QString m_unreadable;
    /// How many lines the file has; none of them is known until it was written by this object.
    qsizetype m_lines = -1;
};
