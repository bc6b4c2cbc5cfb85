// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "designs/kicad/symbolcounter.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

namespace designs::kicad {

/// Counts the symbols of a schematic a second time, with a reader of its own that shares no code and no data
/// with the one that makes the components: placed symbols of every file times the uses of the file.
class SymbolRecount
{
public:
    /// `threads` is how many read files at once, 0 for as many as are worth while.
    explicit SymbolRecount(int threads = 0)
        : m_threads(threads)
    {
    }

    /// The symbols of these root sheets and of all sheets below them; false fills `problem`.
    [[nodiscard]] bool count(const QStringList &roots, SymbolCount *count, Problem *problem);

private:
    struct File
    {
        FileCount count;
        /// Why it could not be read.
        QString problem;
    };

    [[nodiscard]] static File read(const QString &path, QByteArray *buffer);
    void countAhead(const QStringList &roots);
    bool add(const QString &path, int depth, SymbolCount *sum, Problem *problem);

    int m_threads;
    /// By canonical path.
    QHash<QString, File> m_files;
    /// Of a file and everything below it, by its canonical path: each is added up once.
    QHash<QString, SymbolCount> m_sums;
    /// What ${KIPRJMOD} stands for.
    QString m_folder;
};

} // namespace designs::kicad
