// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/designfiles.h"
#include "standalone/designwriter.h"
#include "standalone/dnpchoice.h"
#include "standalone/settleddesign.h"
#include "standalone/standalonecdb.h"
#include "standalone/standalonedocument.h"
#include "standalone/standalonenetlist.h"
#include "standalone/standaloneprocess.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <span>

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

    /// What reads designs for open() and reread() instead of readSettledDesign(), such as one that handles
    /// events meanwhile. It is not used after a write, which nothing may interrupt.
    using Reader = std::function<SettledDesign(const QString &path, const OpenOptions &options)>;
    void setReader(Reader reader) { m_reader = std::move(reader); }

    /// Opens a design in place of the one that is open. A write that was interrupted is first completed or
    /// taken back. On failure error() says why and the old design stays open.
    [[nodiscard]] bool open(const QString &path, const OpenOptions &options = {});
    /// Takes over a design that was read elsewhere.
    void open(std::unique_ptr<const designs::Design> design);
    /// Reads the design again under the options that it was opened with, fills the caches and tells their
    /// clients. On failure error() says why and the old design stays open.
    [[nodiscard]] bool reread();
    /// Closes the design: the caches of the clients become empty.
    void close();
    /// "FILE:LINE: what is wrong" each, of the last open() or reread().
    [[nodiscard]] const QStringList &errors() const { return m_errors; }
    /// All of them in one line.
    [[nodiscard]] QString error() const { return m_errors.join(QStringLiteral("; ")); }

    /// What was done about an interrupted write, and what the readers of the design and of the tables of
    /// property names noticed and went on from, one "FILE:LINE: text" each.
    [[nodiscard]] QStringList warnings() const;
    /// The files that make up the design, absolute.
    [[nodiscard]] QStringList files() const;
    /// The variants that the design defines, sorted.
    [[nodiscard]] QStringList variants() const;

    /// Runs scripts on the component database as one batch, which is written with these options and not at
    /// all when `runScripts` gives false. Not to be called within a batch. Any other batch is written with
    /// the default options.
    [[nodiscard]] WriteResult write(const WriteOptions &options, const std::function<bool()> &runScripts);
    /// The files of the design whose content is not what was read, also those that cannot be read any more.
    [[nodiscard]] QStringList changedFiles() const;

    struct UndoOptions
    {
        /// See WriteOptions::rereads.
        bool rereads = true;
    };
    /// Takes back the last write, of this or an earlier session.
    [[nodiscard]] UndoResult undo(const UndoOptions &options);
    [[nodiscard]] UndoResult undo() { return undo(UndoOptions()); }
    [[nodiscard]] bool canUndo() const;
    /// What undo() would take back.
    [[nodiscard]] designs::LastWrite lastWrite() const;

    [[nodiscard]] DnpChoice dnpChoice() const { return m_dnpChoice; }
    /// The caches become stale when the choice changes.
    void setDnpChoice(DnpChoice choice);

    /// Whether designs that are opened from now on have their properties found by the exact name, the alias
    /// and the letter case only, not by names of the same meaning.
    void setExactNames(bool areExact) { m_hasExactNames = areExact; }

    /// Null before a design is open.
    [[nodiscard]] const LoadedDesign *design() const { return m_design.get(); }
    [[nodiscard]] StandaloneNetlist &netlist() { return m_netlist; }
    [[nodiscard]] const StandaloneDocument &document() const { return m_document; }
    [[nodiscard]] StandaloneDocument &document() { return m_document; }
    [[nodiscard]] ProjectNotes &projectNotes() { return m_process.projectNotes(); }
    [[nodiscard]] StandaloneProcess &process() { return m_process; }

    /// To be called when the board file was saved: places the components by the board as it is now, and has
    /// the document report that the board was modified. On failure error() says why and nothing changes.
    [[nodiscard]] bool rereadBoard();

private:
    [[nodiscard]] bool read(const QString &path, const OpenOptions &options, const Reader &reader);
    [[nodiscard]] bool reread(const Reader &reader);
    void setDesign(std::unique_ptr<const designs::Design> design);
    /// What the component database calls for the outermost batch.
    [[nodiscard]] QList<CDBPROBLEM> writeBatch(std::span<const designs::Edit> edits);
    /// Reads the design again after files were replaced.
    void takeOverFiles();

    StandaloneDocument m_document;
    StandaloneNetlist m_netlist;
    StandaloneCdb m_cdb;
    StandaloneProcess m_process;
    std::shared_ptr<LoadedDesign> m_design;
    DnpChoice m_dnpChoice = DnpChoice::Exclude;
    bool m_hasExactNames = false;
    /// What is wrong with the tables of property names.
    QStringList m_tableProblems;
    Reader m_reader;
    /// What the design is read from: the file that was named, a project too.
    QString m_path;
    OpenOptions m_openOptions;
    QStringList m_recoveries;
    /// Of the batch that write() runs: the interface of the host's database has no place for them.
    WriteOptions m_writeOptions;
    WriteResult m_result;
    QStringList m_errors;
};
