// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/workbench.h"

#include "app/designstatus.h"
#include "app/emptypage.h"
#include "app/programmenus.h"
#include "app/recentfiles.h"
#include "app/statusfields.h"
#include "host/framework/applnmodule.h"
#include "host/framework/hostui.h"
#include "richtext/paper/pagepainter.h"
#include "standalone/buyerfields.h"
#include "standalone/loadeddesign.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>

Workbench::Workbench()
{
    m_session.process().setFrame(&m_window);
    m_session.process().setFurtherTemplates(m_fitted.path());
    FittedFolder::proposeToUser();
    m_session.projectNotes().setPagePainter([](QPainter &painter, const QString &text) {
        (void)paintTextPages(painter, tr("Project Notes"), text);
    });
    m_session.netlist().setReader([this] { return rereadDesign(); });
    connectWindow();
    updateRecentFiles();
}

Workbench::~Workbench()
{
    if (APPLNMODULE *module = m_library.module()) {
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
    return true;
}

void Workbench::connectWindow()
{
    ProgramMenus &menus = m_window.menus();
    connect(&menus, &ProgramMenus::openRequested, this, &Workbench::chooseFile);
    connect(&menus, &ProgramMenus::recentChosen, this, &Workbench::open);
    connect(&menus, &ProgramMenus::recentCleared, this, &Workbench::clearRecentFiles);
    connect(&menus, &ProgramMenus::fileMenuOpening, this,
            [this] { m_window.menus().setUndoEnabled(m_session.canUndo()); });
    connect(&menus, &ProgramMenus::undoRequested, this, &Workbench::undoLastWrite);
    connect(&menus, &ProgramMenus::dnpChosen, this, &Workbench::chooseDnp);
    connect(&menus, &ProgramMenus::variantChosen, this, &Workbench::openVariant);
    connect(&menus, &ProgramMenus::aboutRequested, this, &Workbench::showAbout);
    connect(&m_window.emptyPage(), &EmptyPage::recentChosen, this, &Workbench::open);
    connect(&m_window, &FrameWindow::fileDropped, this, &Workbench::open);
    connect(&m_watcher, &FileWatcher::touched, this, &Workbench::checkFiles);
    m_window.setCloseQuery([this] { return canClose(); });
}

void Workbench::chooseFile()
{
    const QStringList recent = RecentFiles::list();
    const QString last = m_path.isEmpty() && !recent.isEmpty() ? recent.constFirst() : m_path;
    const QString path = HostUi::current().openFileName(
        &m_window, tr("Open Design"), last.isEmpty() ? QString() : QFileInfo(last).path(),
        tr("Designs (*.kicad_sch *.kicad_pro *.csv);;All files (*)"));
    if (!path.isEmpty()) {
        (void)open(path);
    }
}

bool Workbench::open(const QString &path)
{
    const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (!canClose()) {
        return false;
    }
    if (!m_session.open(file)) {
        if (!QFileInfo::exists(file)) {
            RecentFiles::remove(file);
            updateRecentFiles();
        }
        HostUi::current().warning(&m_window, tr("Open Failed"), m_session.error());
        return false;
    }
    m_path = file;
    m_variant.clear();
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

void Workbench::openVariant(const QString &variant)
{
    if (!canClose()) {
        m_window.menus().setVariants(m_session.variants(), m_variant);
        return;
    }
    if (m_session.open(m_path, {variant})) {
        m_variant = variant;
        showDesign();
        return;
    }
    HostUi::current().warning(&m_window, tr("Open Failed"), m_session.error());
    m_window.menus().setVariants(m_session.variants(), m_variant);
}

void Workbench::showDesign()
{
    const QString name = QFileInfo(m_path).completeBaseName();
    m_window.setDesignName(m_variant.isEmpty() ? name : name + QStringLiteral(" [") + m_variant + u']');
    m_window.menus().setVariants(m_session.variants(), m_variant);
    watchDesign();
    if (const QString problem = m_fitted.write(*m_session.design()); !problem.isEmpty()) {
        m_window.setstatustext(problem);
    }
    m_library.module()->onvalidate();
    if (!m_library.module()->getprimarywindow()) {
        m_library.module()->createwindow(&m_window, 0);
    }
    updateStatus();
}

void Workbench::watchDesign()
{
    m_board.setFile(boardFileOf(*m_session.design()));
    m_project.setFile(projectFileOf(*m_session.design()));
    QStringList files = m_session.files();
    for (const QString &file : {m_board.file(), m_project.file(), m_session.document().notesFile()}) {
        if (!file.isEmpty()) {
            files << file;
        }
    }
    m_watcher.setFiles(files);
    m_isBehind = false;
    m_window.status().setProblem({});
}

void Workbench::checkFiles()
{
    const bool isUserBusy = QApplication::activeModalWidget() || QApplication::activePopupWidget();
    if (isUserBusy || (client() && client()->isbusy())) {
        // A dialog may hold parts, which a new reading would delete; nor is a menu or an editor pulled away.
        m_watcher.touchLater();
        return;
    }
    if (m_session.design()) {
        const bool isOtherProject = m_project.hasChanged();
        // After a failure the design that is shown is an old one, whatever the files look like.
        if (isOtherProject || m_isBehind || !m_session.changedFiles().isEmpty()) {
            (void)rereadDesign();
        } else if (m_board.hasChanged()) {
            rereadBoard();
        } else if (m_session.document().hasOtherNotes()) {
            rereadNotes();
        } else if (m_statusStamp != m_session.design()->properties().stamp()) {
            // The module wrote the files, and the session has read them since.
            updateStatus();
        }
    }
    Q_EMIT filesChecked();
}

bool Workbench::rereadDesign()
{
    if (!m_session.reread()) {
        m_isBehind = true;
        // It may be half written; the next change of a file reads it again.
        m_window.status().setProblem(m_session.error());
        return false;
    }
    showDesign();
    return true;
}

void Workbench::rereadNotes()
{
    m_session.netlist().invalidateCaches();
    m_library.module()->onvalidate();
    updateStatus();
}

void Workbench::rereadBoard()
{
    if (m_session.rereadBoard()) {
        m_window.status().setProblem({});
        m_library.module()->onvalidate();
        updateStatus();
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
    updateStatus();
}

void Workbench::clearRecentFiles()
{
    RecentFiles::clear();
    updateRecentFiles();
}

void Workbench::undoLastWrite()
{
    const QString question = tr("Take back what was written last into the design \"%1\"?");
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
    if (!HostUi::current().question(&m_window, tr("Undo Last Write"),
                                    question.arg(QFileInfo(m_path).fileName()), false)) {
        return;
    }
    const UndoResult undone = m_session.undo();
    if (!undone.files.isEmpty()) {
        if (m_session.changedFiles().isEmpty()) {
            showDesign();
        }
        QStringList names;
        for (const QString &file : undone.files) {
            names << QFileInfo(file).fileName();
        }
        m_window.setstatustext(tr("Restored: ") + names.join(QStringLiteral(", ")));
    }
    const QStringList messages = undone.problems + undone.notices;
    if (!messages.isEmpty()) {
        HostUi::current().warning(&m_window, tr("Undo Last Write"), messages.join(u'\n'));
    }
}

void Workbench::updateRecentFiles()
{
    const QStringList recent = RecentFiles::list();
    m_window.menus().setRecentFiles(recent);
    m_window.emptyPage().setRecentFiles(recent);
}

INETCLIENT *Workbench::client() const
{
    return static_cast<INETCLIENT *>(m_library.module()->queryinterface(INTERFACE_NETCLIENT));
}

std::optional<qsizetype> Workbench::listedParts() const
{
    return client() ? client()->partcount() : std::nullopt;
}

QStringList Workbench::joinedLines() const
{
    const TellingProperties telling = tellingProperties(*m_session.design());
    return client() ? client()->differinglines(telling.always, telling.whereFilled) : QStringList();
}

void Workbench::updateStatus()
{
    if (!m_session.design()) {
        return;
    }
    m_statusStamp = m_session.design()->properties().stamp();
    DesignStatus status = designStatus(m_session, listedParts());
    status.warnings += joinedLines();
    m_window.status().setDesign(status);
}

void Workbench::showAbout()
{
    HostUi::current().information(
        &m_window, tr("About Bill of Materials Viewer"),
        tr("Bill of Materials Viewer %1\nBills of materials from KiCad schematics and part lists.")
            .arg(QCoreApplication::applicationVersion()));
}

bool Workbench::canClose()
{
    APPLNWINDOW *window = m_library.module() ? m_library.module()->getprimarywindow() : nullptr;
    return !window || window->canbeclosed();
}
