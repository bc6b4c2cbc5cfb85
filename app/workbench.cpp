// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/workbench.h"

#include "app/designbar.h"
#include "app/droppedfiles.h"
#include "app/emptypage.h"
#include "app/programdialogs.h"
#include "app/programmenus.h"
#include "app/recentfiles.h"
#include "app/statusfields.h"
#include "host/framework/applnmodule.h"
#include "host/framework/hostui.h"
#include "host/framework/reportfile.h"
#include "richtext/paper/pagepainter.h"
#include "standalone/designguard.h"
#include "standalone/loadeddesign.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QProcess>
#include <QScopedValueRollback>

#include <utility>

namespace {

/// Of designs that are dropped together.
constexpr qsizetype mostNewWindows = 5;

} // namespace

Workbench::Workbench()
{
    m_session.process().setFrame(&m_window);
    m_session.process().setControlBars([this] { return makeDesignBar(m_window.menus()); });
    m_session.process().setFurtherTemplates(m_fitted.path());
    FittedFolder::proposeToUser();
    m_session.projectNotes().setPagePainter([](QPainter &painter, const QString &text) {
        (void)paintTextPages(painter, tr("Project Notes"), text);
    });
    m_session.netlist().setReader([this] { return rereadDesign(); });
    m_session.setReader(
        [this](const QString &path, const OpenOptions &options) { return m_reading.read(path, options); });
    setStarter([](const QStringList &arguments) {
        return QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
    });
    setReportFileGuard([this](const QString &path) { return belongsToDesign(m_session, path); });
    connectWindow();
    m_window.emptyPage().setExamples(exampleDesigns());
    updateRecentFiles();
}

Workbench::~Workbench()
{
    setReportFileGuard(nullptr);
    if (APPLNMODULE *module = m_library.module()) {
        if (client()) {
            client()->setreportlistener(nullptr);
        }
        if (APPLNWINDOW *window = module->getprimarywindow()) {
            module->removewindow(window);
        }
        // Objects that wait for deleteLater() have their code in the library.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        module->savesettings();
        module->system_term();
    }
    m_library.unload();
    m_session.process().setFrame(nullptr);
}

bool Workbench::start(const QString &modulePath)
{
    APPLNPROCESS *process = &m_session.process();
    const bool isLoaded =
        modulePath.isEmpty() ? m_library.loadFirst(process) : m_library.load(modulePath, process);
    if (!isLoaded) {
        m_error = m_library.error();
        return false;
    }
    if (!m_library.module()->system_init() || !m_library.module()->load()) {
        m_error = tr("the module \"%1\" cannot be started").arg(m_library.module()->getapplnname());
        return false;
    }
    m_modulePath = modulePath;
    if (client()) {
        client()->setreportlistener([this](bool isReport) { m_status.reportChanged(isReport); });
    }
    showStartPage();
    return true;
}

void Workbench::connectWindow()
{
    ProgramMenus &menus = m_window.menus();
    const auto openChosen = [this] {
        if (const QString path = dialogs::chosenDesign(&m_window); !path.isEmpty()) {
            (void)open(path);
        }
    };
    const auto openPath = [this](const QString &path) { (void)open(path); };
    connect(&menus, &ProgramMenus::openRequested, this, openChosen);
    connect(&menus, &ProgramMenus::newWindowRequested, this, [this] {
        if (const QString path = dialogs::chosenDesign(&m_window); !path.isEmpty()) {
            openInNewWindows({path});
        }
    });
    connect(&menus, &ProgramMenus::recentChosen, this, openPath);
    connect(&menus, &ProgramMenus::recentCleared, this, &Workbench::clearRecentFiles);
    connect(&menus, &ProgramMenus::fileMenuOpening, this, [this] {
        m_window.menus().setUndoEnabled(m_session.canUndo());
        m_window.menus().setRecentFiles(RecentFiles::list());
    });
    connect(&menus, &ProgramMenus::undoRequested, this, &Workbench::undoLastWrite);
    connect(&menus, &ProgramMenus::closeRequested, this, &Workbench::closeDesign);
    connect(&menus, &ProgramMenus::rereadRequested, this, &Workbench::rereadNow);
    connect(&menus, &ProgramMenus::dnpChosen, this, &Workbench::chooseDnp);
    connect(&menus, &ProgramMenus::variantChosen, this, &Workbench::openVariant);
    connect(&menus, &ProgramMenus::aboutRequested, this, [this] { dialogs::showAbout(&m_window); });
    connect(&m_window.emptyPage(), &EmptyPage::recentChosen, this, openPath);
    connect(&m_window.emptyPage(), &EmptyPage::unwrittenChosen, this, &Workbench::open);
    connect(&m_window.emptyPage(), &EmptyPage::exampleChosen, this, &Workbench::openExample);
    connect(&m_window, &FrameWindow::filesDropped, this, &Workbench::openDropped);
    connect(&m_files.watcher(), &FileWatcher::touched, this, &Workbench::checkFiles);
    m_window.setCloseQuery([this] { return canClose(); });
}

bool Workbench::open(const QString &path, const QString &variant)
{
    QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (QFileInfo(file).isDir()) {
        const DroppedFiles found = droppedFiles({file});
        if (found.designs.isEmpty()) {
            HostUi::current().warning(&m_window, tr("Open Failed"), found.problem);
            return false;
        }
        file = found.designs.constFirst();
    }
    if (m_reading.isReading() || !canClose()) {
        return false;
    }
    DesignClaim claim;
    const bool isMine = m_claim.holds(file);
    if (!isMine && !claim.take(file) && !dialogs::isWantedTwice(&m_window, file)) {
        return false;
    }
    if (!m_session.open(file, {variant})) {
        tellOpenFailed(file);
        return false;
    }
    if (!isMine) {
        m_claim = std::move(claim);
    }
    // What it says is about the design before.
    m_window.setstatustext({});
    m_path = file;
    m_variant = variant;
    // Reports are proposed to be written beside the design.
    (void)QDir::setCurrent(QFileInfo(file).path());
    RecentFiles::add(file);
    updateRecentFiles();
    showDesign();
    if (!m_library.module()->getprimarywindow()) {
        HostUi::current().warning(&m_window, tr("Open Failed"),
                                  tr("The module \"%1\" has no window to show the design in.")
                                      .arg(m_library.module()->getapplnname()));
        return false;
    }
    return true;
}

void Workbench::tellOpenFailed(const QString &file)
{
    const QString name = QFileInfo(file).fileName();
    m_reading.finish();
    if (m_reading.wasStopped()) {
        m_window.setstatustext(tr("Reading %1 was cancelled.").arg(name));
        return;
    }
    if (!QFileInfo::exists(file)) {
        RecentFiles::remove(file);
        updateRecentFiles();
    }
    HostUi::current().warning(&m_window, tr("Open Failed"),
                              tr("The design \"%1\" cannot be opened.").arg(name) + QStringLiteral("\n\n") +
                                  m_session.errors().join(u'\n'));
}

void Workbench::openInNewWindows(const QStringList &paths)
{
    for (const QString &path : paths) {
        const QStringList module =
            m_modulePath.isEmpty() ? QStringList() : QStringList{QStringLiteral("--module"), m_modulePath};
        // Behind "--" a name may begin with a hyphen.
        if (!m_startProgram(module + QStringList{QStringLiteral("--"), QFileInfo(path).absoluteFilePath()})) {
            HostUi::current().warning(&m_window, tr("Open Failed"),
                                      tr("The program cannot be started once more: %1")
                                          .arg(QCoreApplication::applicationFilePath()));
            return;
        }
    }
}

void Workbench::openExample(const ExampleDesign &example)
{
    const ExampleCopy copy = copyOfExample(example);
    if (copy.file.isEmpty()) {
        HostUi::current().warning(&m_window, tr("Open Failed"), copy.problem);
    } else if (open(copy.file)) {
        const QString folder = QDir::toNativeSeparators(QFileInfo(copy.file).path());
        m_window.setstatustext((copy.isOld ? tr("This is your copy of the example from before, in %1")
                                           : tr("This is a copy of the example, in %1"))
                                   .arg(folder));
    }
}

void Workbench::openDropped(const QStringList &paths)
{
    const DroppedFiles dropped = droppedFiles(paths);
    if (!dropped.designs.isEmpty()) {
        (void)open(dropped.designs.constFirst());
        openInNewWindows(dropped.designs.mid(1, mostNewWindows));
    }
    if (const qsizetype left = dropped.designs.size() - 1 - mostNewWindows; left > 0) {
        m_window.setstatustext(tr("%1 further designs were not opened.").arg(left));
    } else if (!dropped.problem.isEmpty()) {
        m_window.setstatustext(dropped.problem);
    }
}

void Workbench::closeDesign()
{
    if (!m_session.design() || m_reading.isReading() || !canClose()) {
        return;
    }
    APPLNMODULE *module = m_library.module();
    if (APPLNWINDOW *window = module->getprimarywindow()) {
        auto *object = dynamic_cast<QObject *>(window);
        module->removewindow(window);
        QCoreApplication::sendPostedEvents(object, QEvent::DeferredDelete);
    }
    m_files.forget();
    m_session.close();
    m_claim = {};
    m_path.clear();
    m_variant.clear();
    m_output.forget();
    m_window.setDesignName({});
    m_window.menus().setVariants({}, {});
    m_status.clear();
    m_window.menus().setDesignOpen(false);
    m_window.setstatustext({});
    showStartPage();
}

void Workbench::showStartPage()
{
    m_window.emptyPage().setUnwrittenEdits(client() ? client()->unwrittenedits() : QList<UNWRITTENEDITS>());
    updateRecentFiles();
}

void Workbench::openVariant(const QString &variant)
{
    if (!m_reading.isReading() && canClose()) {
        if (m_session.open(m_path, {variant})) {
            m_variant = variant;
            showDesign();
            return;
        }
        tellOpenFailed(m_path);
    }
    m_window.menus().setVariants(m_session.variants(), m_variant);
}

void Workbench::showDesign()
{
    const QString name = QFileInfo(m_path).completeBaseName();
    m_window.setDesignName(m_variant.isEmpty() ? name : name + QStringLiteral(" [") + m_variant + u']');
    m_window.menus().setVariants(m_session.variants(), m_variant);
    m_window.menus().setDesignOpen(true);
    m_files.watch(&m_session);
    m_window.status().setProblem({});
    if (const QString problem = m_fitted.write(*m_session.design()); !problem.isEmpty()) {
        m_window.setstatustext(problem);
    }
    m_library.module()->onvalidate();
    if (!m_library.module()->getprimarywindow()) {
        m_library.module()->createwindow(&m_window, 0);
    }
    m_status.update();
    m_reading.finish();
}

bool Workbench::isUserBusy() const
{
    const bool hasDialog = QApplication::activeModalWidget() || QApplication::activePopupWidget();
    return hasDialog || m_reading.isReading() || (client() && client()->isbusy());
}

void Workbench::checkFiles()
{
    if (isUserBusy()) {
        // A dialog may hold parts, which a new reading would delete; nor is a menu or an editor pulled away.
        m_files.watcher().touchLater();
        return;
    }
    if (m_session.design()) {
        followChangedFiles();
    }
    Q_EMIT filesChecked();
}

void Workbench::followChangedFiles()
{
    switch (m_files.takeStale(&m_session)) {
    case StaleFiles::Design:
        (void)rereadDesign();
        break;
    case StaleFiles::Board:
        rereadBoard();
        break;
    case StaleFiles::Notes:
        rereadNotes();
        break;
    case StaleFiles::None:
        m_status.updateIfWritten();
        break;
    }
}

void Workbench::rereadNow()
{
    if (!m_session.design()) {
        return;
    }
    if (isUserBusy()) {
        m_files.setBehind(true);
        m_files.watcher().touchLater();
        m_window.setstatustext(tr("The design is read again as soon as the open editor is closed."));
        return;
    }
    (void)rereadDesign();
}

bool Workbench::rereadDesign()
{
    if (!m_session.reread()) {
        m_files.setBehind(!m_reading.wasStopped());
        m_reading.finish();
        // It may be half written; the next change of a file reads it again.
        m_window.status().setProblem(m_session.error());
        // That it was read the last time.
        m_window.setstatustext({});
        return false;
    }
    showDesign();
    const qsizetype pending = m_status.pending();
    const QString text = tr("%1 was read again.").arg(QFileInfo(m_path).fileName());
    m_window.setstatustext(pending == 0   ? text
                           : pending == 1 ? text + u' ' + tr("1 pending edit is kept.")
                                          : text + u' ' + tr("%1 pending edits are kept.").arg(pending));
    return true;
}

void Workbench::rereadNotes()
{
    m_session.netlist().invalidateCaches();
    m_library.module()->onvalidate();
    m_status.update();
}

void Workbench::rereadBoard()
{
    if (m_session.rereadBoard()) {
        m_window.status().setProblem({});
        m_library.module()->onvalidate();
        m_status.update();
    } else {
        m_window.status().setProblem(m_session.error());
    }
}

void Workbench::chooseDnp(DnpChoice choice)
{
    if (!canClose()) {
        m_window.menus().setDnpChoice(m_session.dnpChoice());
        return;
    }
    m_session.setDnpChoice(choice);
    m_window.menus().setDnpChoice(choice);
    m_library.module()->onvalidate();
    m_status.update();
}

void Workbench::clearRecentFiles()
{
    RecentFiles::clear();
    updateRecentFiles();
}

void Workbench::undoLastWrite()
{
    if (!m_session.design()) {
        return;
    }
    const quint64 stamp = m_session.design()->properties().stamp();
    if (!canClose()) {
        return;
    }
    if (m_session.design()->properties().stamp() != stamp) {
        // What was to be taken back is not the last write any more.
        m_window.setstatustext(
            tr("The pending changes were written just now, and would be taken back first."));
        return;
    }
    if (!dialogs::isUndoWanted(&m_window, m_path, m_session.lastWrite())) {
        return;
    }
    const UndoResult undone = m_session.undo();
    if (!undone.files.isEmpty() && m_session.changedFiles().isEmpty()) {
        showDesign();
    }
    dialogs::tellUndone(&m_window, undone);
}

void Workbench::updateRecentFiles()
{
    const QStringList recent = RecentFiles::list();
    m_window.menus().setRecentFiles(recent);
    m_window.emptyPage().setRecentFiles(recent);
}

INETCLIENT *Workbench::client() const
{
    APPLNMODULE *module = m_library.module();
    return module ? static_cast<INETCLIENT *>(module->queryinterface(INTERFACE_NETCLIENT)) : nullptr;
}

bool Workbench::canClose()
{
    // A key that still reaches an open menu must not delete the window that the question stands on.
    if (m_isAskingToClose) {
        return false;
    }
    const QScopedValueRollback asking(m_isAskingToClose, true);
    APPLNWINDOW *window = m_library.module() ? m_library.module()->getprimarywindow() : nullptr;
    return !window || window->canbeclosed();
}
