// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designsession.h"

#include "designs/formats/designreader.h"
#include "designs/transaction/designfiles.h"
#include "host/framework/hostui.h"
#include "standalone/companionfiles.h"
#include "standalone/fieldtables.h"
#include "standalone/loadeddesign.h"
#include "standalone/texts.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

DesignSession::DesignSession()
    : m_process(m_document, m_netlist)
{
    m_netlist.setReader([this] { return reread(); });
    m_cdb.setWriter([this](std::span<const designs::Edit> edits) { return writeBatch(edits); });
    m_cdb.setPreviewer([this](std::span<const designs::Edit> edits, QList<CDBPROBLEM> *problems) {
        return previewEdits(m_design->design(), edits, problems);
    });
    setapplnprocess(&m_process);
    setcdb(&m_cdb);
}

DesignSession::~DesignSession()
{
    setcdb(nullptr);
    setapplnprocess(nullptr);
}

bool DesignSession::open(const QString &path, const OpenOptions &options)
{
    if (!read(path, options, m_reader)) {
        return false;
    }
    m_path = QFileInfo(path).absoluteFilePath();
    m_openOptions = options;
    return true;
}

void DesignSession::open(std::unique_ptr<const designs::Design> design)
{
    m_path = design->info().file;
    m_openOptions = {design->info().variant};
    m_recoveries.clear();
    setDesign(std::move(design));
}

void DesignSession::close()
{
    m_path.clear();
    m_openOptions = {};
    m_recoveries.clear();
    m_errors.clear();
    m_tableProblems.clear();
    m_process.setOpen(false);
    m_process.navigator().setDesign(nullptr);
    m_document.setDesign(nullptr);
    m_cdb.setDesign(nullptr);
    m_design.reset();
    m_netlist.setDesign(nullptr);
    // A server without a design sends nothing, so that they learn only that what they have is stale.
    m_netlist.refreshCaches();
}

bool DesignSession::reread()
{
    return reread(m_reader);
}

bool DesignSession::reread(const Reader &reader)
{
    if (!read(m_path, m_openOptions, reader)) {
        return false;
    }
    m_netlist.refreshCaches();
    return true;
}

bool DesignSession::read(const QString &path, const OpenOptions &options, const Reader &reader)
{
    SettledDesign settled = reader ? reader(path, options) : readSettledDesign(path, options);
    if (!settled.design) {
        m_errors = settled.errors;
        return false;
    }
    m_recoveries = settled.notices;
    setDesign(std::move(settled.design));
    return true;
}

void DesignSession::setDesign(std::unique_ptr<const designs::Design> design)
{
    m_errors.clear();
    LoadedFieldNames fields = m_hasExactNames ? LoadedFieldNames() : loadFieldNames(design->info().file);
    m_tableProblems = fields.problems;
    m_design = std::make_shared<LoadedDesign>(std::move(design), m_dnpChoice, std::move(fields.names));
    m_document.setDesign(m_design);
    m_cdb.setDesign(m_design);
    m_process.navigator().setDesign(m_design);
    m_process.setOpen(true);
    m_netlist.setDesign(m_design);
}

QStringList DesignSession::warnings() const
{
    return m_design ? m_recoveries + messagesOf(m_design->design().warnings()) + m_tableProblems
                    : QStringList();
}

WriteResult DesignSession::write(const WriteOptions &options, const std::function<bool()> &runScripts)
{
    m_writeOptions = options;
    m_result = {};
    m_cdb.beginbatch();
    if (runScripts()) {
        (void)m_cdb.commitbatch();
    } else {
        m_cdb.dropbatch();
    }
    m_writeOptions = {};
    WriteResult result = std::exchange(m_result, {});
    result.problems = m_cdb.problems();
    return result;
}

QList<CDBPROBLEM> DesignSession::writeBatch(std::span<const designs::Edit> edits)
{
    // Keep the design: reading it again replaces m_design.
    const std::shared_ptr<const LoadedDesign> design = m_design;
    m_result = writeEdits(design->design(), edits, m_writeOptions);
    if (!m_result.files.isEmpty() && !m_writeOptions.isDryRun && m_writeOptions.rereads) {
        takeOverFiles();
    }
    if (!m_result.notices.isEmpty()) {
        HostUi::current().warning(nullptr, SessionTexts::tr("The design was written"),
                                  m_result.notices.join(QStringLiteral("; ")));
    }
    return m_result.problems;
}

void DesignSession::takeOverFiles()
{
    if (!reread({})) {
        HostUi::current().warning(
            nullptr, SessionTexts::tr("The design was written"),
            SessionTexts::tr("It cannot be read again, and is shown as it was before: %1").arg(error()));
    }
}

QStringList DesignSession::changedFiles() const
{
    return m_design ? m_design->design().changedFiles() : QStringList();
}

UndoResult DesignSession::undo(const UndoOptions &options)
{
    if (!m_design) {
        return {};
    }
    const UndoResult undone = undoLastWrite(m_design->design());
    if (!undone.files.isEmpty() && options.rereads) {
        takeOverFiles();
    }
    return undone;
}

bool DesignSession::canUndo() const
{
    return m_design && filesOf(m_design->design()).canUndo();
}

designs::LastWrite DesignSession::lastWrite() const
{
    return m_design ? filesOf(m_design->design()).lastWrite() : designs::LastWrite();
}

QStringList DesignSession::files() const
{
    return m_design ? m_design->design().files() : QStringList();
}

QStringList DesignSession::variants() const
{
    return m_design ? m_design->design().variants() : QStringList();
}

void DesignSession::setDnpChoice(DnpChoice choice)
{
    if (choice == m_dnpChoice) {
        return;
    }
    m_dnpChoice = choice;
    if (m_design) {
        m_design->properties().setDnpChoice(choice);
        m_netlist.invalidateCaches();
    }
}

bool DesignSession::rereadBoard()
{
    if (!m_design) {
        return false;
    }
    const designs::DesignInfo &info = m_design->design().info();
    designs::ReadOptions options;
    options.variant = info.variant;
    designs::ReadResult result = designs::readDesign(info.file, options);
    if (!result.design) {
        m_errors = {result.error.message()};
        return false;
    }
    // The board is read at the first question; that of a broken one adds a warning.
    const std::size_t before = result.design->warnings().size();
    (void)result.design->placement({});
    if (result.design->warnings().size() > before) {
        m_errors = {result.design->warnings().back().message()};
        return false;
    }
    m_cdb.setBoard(std::move(result.design));
    StandaloneLayout layout(boardFileOf(*m_design));
    Q_EMIT m_document.modified(&layout);
    return true;
}
