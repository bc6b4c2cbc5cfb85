// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/windowpages.h"

#include "editors/bomdataview.h"
#include "host/framework/hostsettings.h"
#include "host/widgets/accessiblepane.h"
#include "host/widgets/panekeys.h"
#include "module/dockwidget.h"
#include "module/optionspanel.h"
#include "views/bomhtmlview.h"

#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const QString settingsGroup = QStringLiteral("BOM");
const QString widthKey = QStringLiteral("OptionsWidth");
constexpr int editorTab = 1;
const QString foldedKey = QStringLiteral("OptionsFolded");

/// The panel as it is where there is room, else with a scroll bar: small screens show all of it, too.
QWidget *scrolled(QWidget *panel)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(panel);
    area->setMinimumWidth(panel->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

} // namespace

WindowPages::WindowPages(QWidget *parent)
    : QMainWindow(parent, Qt::Widget)
    , m_tabs(new QTabWidget)
    , m_report(new BOMHTMLView)
    , m_dataView(new BOMDataView)
    , m_options(new OptionsPanel)
    , m_dock(new DockWidget)
{
    m_tabs->setObjectName(QStringLiteral("tabWidget"));
    m_tabs->setDocumentMode(true);
    m_tabs->installEventFilter(this);
    m_report->setObjectName(QStringLiteral("bomHTMLView"));
    addPage(m_report, QStringLiteral("bomHTMLViewTab"), tr("BOM Report"));
    m_dataView->setObjectName(QStringLiteral("bomDataView"));
    addPage(scrolled(m_dataView), QStringLiteral("bomDataTab"), tr("Property Editor"));
    setCentralWidget(m_tabs);
    m_dock->setObjectName(QStringLiteral("dockWidget"));
    m_dock->setContents(scrolled(m_options));
    addDockWidget(Qt::LeftDockWidgetArea, m_dock);
    makeAccessiblePane(this);
    new PaneKeys(this, {m_dock, m_tabs->tabBar(), m_report, m_dataView});
    restorePlaces();
}

bool WindowPages::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                       event->type() == QEvent::ShortcutOverride;
    if (isKey && watched == m_tabs) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() == Qt::ControlModifier && key->key() == Qt::Key_Tab) {
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void WindowPages::addPage(QWidget *view, const QString &name, const QString &title)
{
    auto *page = new QWidget;
    page->setObjectName(name);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->addWidget(view);
    m_tabs->addTab(page, title);
}

void WindowPages::showPropertyEditor()
{
    m_tabs->setCurrentIndex(editorTab);
}

void WindowPages::takeFocus()
{
    const QWidget *owner = window()->focusWidget();
    // A window whose page has gone leaves the keyboard to the next page itself, which does nothing with it.
    if (!owner || !owner->isVisible() || owner->isAncestorOf(this)) {
        m_report->setFocus(Qt::OtherFocusReason);
    }
}

void WindowPages::restorePlaces()
{
    const HostSettings &settings = HostSettings::current();
    if (const int width = settings.value(settingsGroup, widthKey).value_or(QString()).toInt(); width > 0) {
        m_dock->setOpenWidth(width);
    }
    if (settings.value(settingsGroup, foldedKey) == QStringLiteral("1")) {
        m_dock->setOpen(false);
    }
}

void WindowPages::keepPlaces() const
{
    HostSettings &settings = HostSettings::current();
    settings.setValue(settingsGroup, widthKey, QString::number(m_dock->openWidth()));
    settings.setValue(settingsGroup, foldedKey, m_dock->isOpen() ? QStringLiteral("0") : QStringLiteral("1"));
}
