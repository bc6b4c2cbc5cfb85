// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/framewindow.h"

#include "app/emptypage.h"
#include "app/programmenus.h"
#include "app/statusfields.h"
#include "host/framework/applnmodule.h"
#include "host/framework/hostsettings.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include <algorithm>

namespace {

constexpr QSize firstSize(1200, 800);

QString settingsGroup()
{
    return QStringLiteral("Viewer");
}

QString placeKey()
{
    return QStringLiteral("WindowGeometry");
}

QString toolBarsKey()
{
    return QStringLiteral("ToolBars");
}

/// Of what is kept about the tool bars.
constexpr int toolBarsVersion = 1;

/// Qt leaves the button without a name that shows what a bar has no room for.
void nameExtension(QToolBar *bar)
{
    if (auto *button = bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"))) {
        button->setToolTip(FrameWindow::tr("More of '%1'").arg(bar->windowTitle()));
        button->setAccessibleName(button->toolTip());
    }
}

/// The files and folders that are dragged.
QStringList draggedFiles(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile()) {
            paths << url.toLocalFile();
        }
    }
    return paths;
}

} // namespace

FrameWindow::FrameWindow()
    : m_title(tr("Bill of Materials Viewer"))
{
    setAcceptDrops(true);
    m_menus = new ProgramMenus(this);
    m_menuBar = std::make_unique<HostMenuBar>(*m_menus);
    m_status = new StatusFields(this);
    m_emptyPage = new EmptyPage(m_menus->openAction());
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_emptyPage);
    setCentralWidget(m_pages);
    restorePlace();
    updateTitle();
}

FrameWindow::~FrameWindow() = default;

void FrameWindow::addmenu(unsigned id, QMenu *menu, unsigned)
{
    if (ProgramMenus::isShared(id)) {
        m_menus->addShared(id, menu->actions());
    } else {
        const auto next = m_moduleMenus.upperBound(id);
        const bool isLast = next == m_moduleMenus.end() || ProgramMenus::isShared(next.key());
        menuBar()->insertMenu(isLast ? m_menus->firstAfterModule() : next.value()->menuAction(), menu);
    }
    m_moduleMenus.insert(id, menu);
}

void FrameWindow::removemenu(QMenu *menu)
{
    const unsigned id = m_moduleMenus.key(menu);
    if (ProgramMenus::isShared(id)) {
        m_menus->removeShared(id, menu->actions());
    }
    m_moduleMenus.remove(id);
    menuBar()->removeAction(menu->menuAction());
}

void FrameWindow::addtoolbar(QToolBar *bar)
{
    addToolBar(bar);
    nameExtension(bar);
    bar->show();
    // Passes over bars that are still to come, and places them when they do.
    const QString state = HostSettings::current().value(settingsGroup(), toolBarsKey()).value_or(QString());
    restoreState(QByteArray::fromBase64(state.toLatin1()), toolBarsVersion);
    m_isShowingAllBars = true;
}

void FrameWindow::removetoolbar(QToolBar *bar)
{
    keepToolBars();
    m_isShowingAllBars = false;
    removeToolBar(bar);
    bar->setParent(nullptr);
}

void FrameWindow::setwidget(QWidget *widget)
{
    if (m_moduleWidget && m_moduleWidget != widget) {
        m_pages->removeWidget(m_moduleWidget);
    }
    m_moduleWidget = widget;
    m_pages->addWidget(widget);
    m_pages->setCurrentWidget(widget);
}

void FrameWindow::removewidget(QWidget *widget)
{
    m_pages->removeWidget(widget);
    widget->setParent(nullptr);
    if (m_moduleWidget == widget) {
        m_moduleWidget.clear();
        m_pages->setCurrentWidget(m_emptyPage);
    }
}

void FrameWindow::settitle(const QString &title)
{
    m_title = title;
    updateTitle();
}

void FrameWindow::setstatustext(const QString &text)
{
    statusBar()->showMessage(text);
}

void FrameWindow::showframe(unsigned state)
{
    switch (state) {
    case WINDOW_HIDDEN:
        hide();
        return;
    case WINDOW_MINIMISED:
        showMinimized();
        return;
    case WINDOW_MAXIMISED:
        showMaximized();
        break;
    default:
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
        break;
    }
    raise();
    activateWindow();
}

bool FrameWindow::isframevisible() const
{
    return isVisible() && !isMinimized();
}

void FrameWindow::setDesignName(const QString &name)
{
    m_designName = name;
    updateTitle();
}

void FrameWindow::updateTitle()
{
    // "[*]" would be taken for the mark of unsaved changes.
    QString name = m_designName;
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(name.isEmpty() ? m_title : name + QStringLiteral("[*] \u2013 ") + m_title);
}

void FrameWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!QApplication::activeModalWidget() && !draggedFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void FrameWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = draggedFiles(*event->mimeData());
    if (!paths.isEmpty()) {
        event->acceptProposedAction();
        QMetaObject::invokeMethod(
            this, [this, paths] { Q_EMIT filesDropped(paths); }, Qt::QueuedConnection);
    }
}

void FrameWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!m_canClose || m_canClose());
    if (event->isAccepted()) {
        keepPlace();
    }
}

void FrameWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    // A user cannot enlarge a window to its least size: what it shows now needs more than the window had.
    const QSize before = event->oldSize();
    if (isVisible() && ((width() > before.width() && width() == minimumWidth()) ||
                        (height() > before.height() && height() == minimumHeight()))) {
        moveOntoScreen();
    }
}

void FrameWindow::moveOntoScreen()
{
    const QRect room = screen()->availableGeometry();
    const QRect now = frameGeometry();
    const QPoint place(std::max(room.left(), std::min(now.left(), room.right() + 1 - now.width())),
                       std::max(room.top(), std::min(now.top(), room.bottom() + 1 - now.height())));
    if (place != now.topLeft()) {
        move(place);
    }
}

void FrameWindow::restorePlace()
{
    const QString place = HostSettings::current().value(settingsGroup(), placeKey()).value_or(QString());
    if (!restoreGeometry(QByteArray::fromBase64(place.toLatin1()))) {
        // Room for what the window manager puts around it.
        constexpr QSize frame(16, 64);
        resize(firstSize.boundedTo(screen()->availableSize() - frame));
    }
}

void FrameWindow::keepToolBars() const
{
    if (m_isShowingAllBars) {
        HostSettings::current().setValue(settingsGroup(), toolBarsKey(),
                                         QString::fromLatin1(saveState(toolBarsVersion).toBase64()));
    }
}

void FrameWindow::keepPlace() const
{
    keepToolBars();
    HostSettings::current().setValue(settingsGroup(), placeKey(),
                                     QString::fromLatin1(saveGeometry().toBase64()));
}
