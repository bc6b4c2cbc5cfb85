// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

#include <QHash>
#include <QStringList>

namespace designs::kicad {

/// Counts the symbols of a schematic a second time, with a reader of its own that shares no code and no data
/// with the one that makes the components: placed symbols of every file times the uses of the file.
class SymbolRecount
{
public:
    /// The symbols of these root sheets and of all sheets below them; false fills `problem`.
    [[nodiscard]] bool count(const QStringList &roots, SymbolCount *count, Problem *problem);

private:
    bool add(const QString &path, int depth, SymbolCount *sum, Problem *problem);

    /// Of a file and everything below it, by its canonical path: each file is walked once.
    QHash<QString, SymbolCount> m_sums;
    /// What ${KIPRJMOD} stands for.
    QString m_folder;
};

} // namespace designs::kicad
