// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/designwriter.h"
#include "standalone/dnpchoice.h"
#include "standalone/standalonecdb.h"
#include "standalone/standalonedocument.h"
#include "standalone/standalonenetlist.h"
#include "standalone/standaloneprocess.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace designs {
class Design;
}
class LoadedDesign;

/// The standalone host with one open design. While it lives it is the installed process and component
/// database, so a program makes one at a time.
class DesignSession final
{
public:
    DesignSession();
    DesignSession(const DesignSession &) = delete;
    DesignSession &operator=(const DesignSession &) = delete;
    ~DesignSession();

    /// Opens a design in place of the one that is open; `variant` is empty for the design as drawn. A write
    /// that was interrupted is first completed or taken back. On failure error() says why and the old design
    /// stays open.
    [[nodiscard]] bool open(const QString &path, const QString &variant = {});
    /// Takes over a design that was read elsewhere.
    void open(std::unique_ptr<const designs::Design> design);
    /// Reads the design again under the variant that it was opened with, fills the caches and tells their
    /// clients. On failure error() says why and the old design stays open.
    [[nodiscard]] bool reread();
    /// "FILE:LINE: what is wrong" of the last open() or reread().
    [[nodiscard]] const QString &error() const { return m_error; }

    /// What was done about an interrupted write, and what the reader noticed and went on from, one
    /// "FILE:LINE: text" each.
    [[nodiscard]] QStringList warnings() const;
    /// The files that make up the design, absolute.
    [[nodiscard]] QStringList files() const;
    /// The variants that the design defines, sorted.
    [[nodiscard]] QStringList variants() const;

    /// In a dry run the component database works out what it is to write and writes nothing.
    void setDryRun(bool isDryRun) { m_writer.setDryRun(isDryRun); }
    /// Whether files that are written leave their previous content beside them; they do at first.
    void setBackups(bool areKept) { m_writer.setBackups(areKept); }
    /// Whether the design is read again after it was written; it is at first. A program that ends then does
    /// without.
    void setRereading(bool isWanted) { m_isRereading = isWanted; }
    /// What the last batch of the component database changed, or would have in a dry run, in the order in
    /// which it was asked for.
    [[nodiscard]] const QList<PropertyChange> &lastChanges() const { return m_writer.changes(); }
    /// The files that the last batch replaced.
    /// How many that were, or would have been in a dry run.
    [[nodiscard]] qsizetype lastFileCount() const { return m_writer.fileCount(); }
    [[nodiscard]] const QStringList &lastWrittenFiles() const { return m_writer.writtenFiles(); }
    /// The files of the design whose content is not what was read, also those that cannot be read any more.
    [[nodiscard]] QStringList changedFiles() const;

    /// What undo() did.
    struct Undone
    {
        /// The files that have their previous content again.
        QStringList files;
        /// Why nothing was taken back, "FILE:LINE: text" each.
        QStringList problems;
        /// The files could not be written now at all: locked, or marked read-only.
        bool isUnwritable = false;
    };
    /// Takes back the last write, of this or an earlier session, and reads the design again.
    [[nodiscard]] Undone undo();
    [[nodiscard]] bool canUndo() const;

    [[nodiscard]] DnpChoice dnpChoice() const { return m_dnpChoice; }
    /// The caches become stale when the choice changes.
    void setDnpChoice(DnpChoice choice);

    /// Null before a design is open.
    [[nodiscard]] const LoadedDesign *design() const { return m_design.get(); }
    [[nodiscard]] StandaloneNetlist &netlist() { return m_netlist; }
    [[nodiscard]] const StandaloneDocument &document() const { return m_document; }
    [[nodiscard]] StandaloneDocument &document() { return m_document; }
    [[nodiscard]] ProjectNotes &projectNotes() { return m_process.projectNotes(); }
    [[nodiscard]] StandaloneProcess &process() { return m_process; }

    /// What a saved board file asks for: places the components by the board as it is now, and has the
    /// document tell that the board was modified. On failure error() says why and nothing changes.
    [[nodiscard]] bool rereadBoard();

private:
    void setDesign(std::unique_ptr<const designs::Design> design);
    [[nodiscard]] QList<CDBPROBLEM> write(std::span<const designs::Edit> edits);
    /// After files were replaced.
    void takeOverFiles();

    StandaloneDocument m_document;
    StandaloneNetlist m_netlist;
    StandaloneCdb m_cdb;
    StandaloneProcess m_process;
    std::shared_ptr<LoadedDesign> m_design;
    DnpChoice m_dnpChoice = DnpChoice::Exclude;
    /// What the design is read from: the file that was named, a project too.
    QString m_path;
    QString m_variant;
    QStringList m_recoveries;
    DesignWriter m_writer;
    bool m_isRereading = true;
    QString m_error;
};
