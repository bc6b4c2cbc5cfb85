// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designsession.h"

#include "designs/formats/designreader.h"
#include "designs/transaction/designfiles.h"
#include "host/framework/hostui.h"
#include "standalone/companionfiles.h"
#include "standalone/loadeddesign.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

/// The file that stands for a design before it is read: of a project its root sheet.
QString designFileOf(const QString &path)
{
    const QFileInfo info(path);
    return info.suffix().compare(QLatin1String("kicad_pro"), Qt::CaseInsensitive) == 0
               ? info.absoluteDir().absoluteFilePath(info.completeBaseName() + QStringLiteral(".kicad_sch"))
               : info.absoluteFilePath();
}

designs::ReadResult read(const QString &path, const QString &variant)
{
    designs::ReadOptions options;
    options.variant = variant;
    return designs::readDesign(path, options);
}

} // namespace

DesignSession::DesignSession()
    : m_process(m_document, m_netlist)
{
    m_netlist.setReader([this] { return reread(); });
    m_cdb.setWriter([this](std::span<const designs::Edit> edits) { return writeBatch(edits); });
    setapplnprocess(&m_process);
    setcdb(&m_cdb);
}

DesignSession::~DesignSession()
{
    setcdb(nullptr);
    setapplnprocess(nullptr);
}

bool DesignSession::open(const QString &path, const QString &variant)
{
    const QString expected = designFileOf(path);
    QStringList recoveries = messagesOf(designs::DesignFiles(expected).recover());
    designs::ReadResult result = read(path, variant);
    if (result.design && result.design->info().file != expected) {
        // The project names another root sheet, which may have an interrupted write of its own.
        const QStringList more = messagesOf(designs::DesignFiles(result.design->info().file).recover());
        if (!more.isEmpty()) {
            recoveries << more;
            result = read(path, variant);
        }
    }
    if (!result.design) {
        m_error = (recoveries << result.error.message()).join(QStringLiteral("; "));
        return false;
    }
    open(std::move(result.design));
    m_path = QFileInfo(path).absoluteFilePath();
    m_variant = variant;
    m_recoveries = recoveries;
    return true;
}

void DesignSession::open(std::unique_ptr<const designs::Design> design)
{
    m_path = design->info().file;
    m_variant = design->info().variant;
    m_recoveries.clear();
    setDesign(std::move(design));
}

bool DesignSession::reread()
{
    designs::ReadResult result = read(m_path, m_variant);
    if (!result.design) {
        m_error = result.error.message();
        return false;
    }
    setDesign(std::move(result.design));
    m_netlist.refreshCaches();
    return true;
}

void DesignSession::setDesign(std::unique_ptr<const designs::Design> design)
{
    m_error.clear();
    m_design = std::make_shared<LoadedDesign>(std::move(design), m_dnpChoice);
    m_document.setDesign(m_design);
    m_cdb.setDesign(m_design);
    m_process.setOpen(true);
    m_netlist.setDesign(m_design);
}

QStringList DesignSession::warnings() const
{
    return m_design ? m_recoveries + messagesOf(m_design->design().warnings()) : QStringList();
}

WriteResult DesignSession::write(const WriteOptions &options, const std::function<bool()> &runScripts)
{
    m_options = options;
    m_result = {};
    m_cdb.beginbatch();
    if (runScripts()) {
        (void)m_cdb.commitbatch();
    } else {
        m_cdb.dropbatch();
    }
    m_options = {};
    WriteResult result = std::exchange(m_result, {});
    result.problems = m_cdb.problems();
    return result;
}

QList<CDBPROBLEM> DesignSession::writeBatch(std::span<const designs::Edit> edits)
{
    // Keep the design: reading it again replaces m_design.
    const std::shared_ptr<const LoadedDesign> design = m_design;
    m_result = writeEdits(design->design(), edits, m_options);
    if (!m_result.files.isEmpty() && !m_options.isDryRun && m_options.rereads) {
        takeOverFiles();
    }
    if (!m_result.notices.isEmpty()) {
        HostUi::current().warning(nullptr,
                                  QCoreApplication::translate("DesignSession", "The design was written"),
                                  m_result.notices.join(QStringLiteral("; ")));
    }
    return m_result.problems;
}

void DesignSession::takeOverFiles()
{
    if (!reread()) {
        HostUi::current().warning(
            nullptr, QCoreApplication::translate("DesignSession", "The design was written"),
            QCoreApplication::translate("DesignSession",
                                        "It cannot be read again, and is shown as it was before: ") +
                m_error);
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
    return m_design && designs::DesignFiles(m_design->design().info().file).canUndo();
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
        m_error = result.error.message();
        return false;
    }
    // The board is read at the first question; that of a broken one adds a warning.
    const std::size_t before = result.design->warnings().size();
    (void)result.design->placement({});
    if (result.design->warnings().size() > before) {
        m_error = result.design->warnings().back().message();
        return false;
    }
    m_cdb.setBoard(std::move(result.design));
    StandaloneLayout layout(boardFileOf(*m_design));
    Q_EMIT m_document.modified(&layout);
    return true;
}
