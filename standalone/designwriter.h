// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "host/netlist/cdbcore.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

namespace designs {
class Design;
}

/// A change (designs::Change) in the words of the host: what was done to a property, or would be.
struct PropertyChange
{
    QString reference;
    /// As it is stored then.
    QString name;
    /// Nothing where the component lacks the property before or after.
    std::optional<QString> before;
    std::optional<QString> after;
    /// Where it stands, the line counted from 1 in the file as it was before.
    QString file;
    int line = 0;
    /// The other references that share what is changed.
    QStringList alsoChanges;

    bool operator==(const PropertyChange &) const = default;
};

/// Writes edits into the files of a design.
class DesignWriter final
{
public:
    /// A dry run works everything out and writes nothing.
    void setDryRun(bool isDryRun) { m_isDryRun = isDryRun; }
    /// Whether the previous content of the files is kept; it is at first.
    void setBackups(bool areKept) { m_keepsBackups = areKept; }

    /// Writes all edits, or none and says why.
    [[nodiscard]] QList<CDBPROBLEM> write(const designs::Design &design,
                                          std::span<const designs::Edit> edits);

    /// What the last write() changed, or would have in a dry run, in the order of the edits. Nothing when it
    /// had problems.
    [[nodiscard]] const QList<PropertyChange> &changes() const { return m_changes; }
    /// The files that the last write() replaced.
    [[nodiscard]] const QStringList &writtenFiles() const { return m_writtenFiles; }
    /// The files that the last write() replaced, or would have in a dry run.
    [[nodiscard]] qsizetype fileCount() const { return m_fileCount; }
    /// What went wrong although the files were replaced, such as that the previous content could not be kept.
    [[nodiscard]] const QStringList &notices() const { return m_notices; }
    void clear();

private:
    bool m_isDryRun = false;
    bool m_keepsBackups = true;
    QList<PropertyChange> m_changes;
    QStringList m_writtenFiles;
    qsizetype m_fileCount = 0;
    QStringList m_notices;
};
