// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/programmenus.h"

#include "host/framework/menubar.h"
#include "host/widgets/applnwidget.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

/// Of a path in a menu, in characters.
constexpr int mostOfFolder = 60;

/// A text of the user's as the text of an action, in which "&" marks a key.
QString actionText(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

/// The number in front of an entry is its key, for the first nine.
QString numbered(int number, const QString &text)
{
    const QString digits = QString::number(number);
    return (number < 10 ? u'&' + digits : digits) + QStringLiteral("  ") + actionText(text);
}

} // namespace

ProgramMenus::ProgramMenus(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
    buildFile();
    buildView();
    buildHelp();
}

QAction *ProgramMenus::add(QMenu *menu, const QString &text, const QString &tip, const QKeySequence &key)
{
    QAction *action = menu->addAction(text);
    action->setStatusTip(tip);
    action->setShortcut(key);
    return action;
}

void ProgramMenus::buildFile()
{
    m_file = m_window->menuBar()->addMenu(tr("&File"));
    QMenu *file = m_file;
    m_open = add(file, tr("&Open…"), tr("Open a schematic, a project or a part list"), QKeySequence::Open);
    m_open->setIcon(APPLNWIDGET::makeIcon(QStringLiteral(":/bom/icons/open.png")));
    connect(m_open, &QAction::triggered, this, &ProgramMenus::openRequested);
    QAction *another = add(file, tr("Open in &New Window…"), tr("Open a design beside this one"),
                           QKeySequence(QStringLiteral("Ctrl+Shift+O")));
    connect(another, &QAction::triggered, this, &ProgramMenus::newWindowRequested);
    m_recent = file->addMenu(tr("Open &Recent"));
    file->addSeparator();
    m_openOutput = add(file, tr("Open &Last Output"), tr("Open the file that was written last"));
    connect(m_openOutput, &QAction::triggered, this, &ProgramMenus::outputRequested);
    m_openFolder = add(file, tr("Open &Folder of the Last Output"),
                       tr("Show the folder of the file that was written last"));
    connect(m_openFolder, &QAction::triggered, this, &ProgramMenus::outputFolderRequested);
    setOutput({});
    file->addSeparator();
    m_undo = add(file, tr("&Undo Last Write…"),
                 tr("Give the files of the design the content that they had before they were written last"));
    m_undo->setEnabled(false);
    connect(m_undo, &QAction::triggered, this, &ProgramMenus::undoRequested);
    connect(file, &QMenu::aboutToShow, this, &ProgramMenus::fileMenuOpening);
    file->addSeparator();
    m_close = add(file, tr("&Close"), tr("Close the design"), QKeySequence(QStringLiteral("Ctrl+W")));
    connect(m_close, &QAction::triggered, this, &ProgramMenus::closeRequested);
    QAction *quit = add(file, tr("&Quit"), tr("End the program"), QKeySequence(QStringLiteral("Ctrl+Q")));
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, m_window, &QWidget::close);
    setRecentFiles({});
    setDesignOpen(false);
}

void ProgramMenus::buildView()
{
    m_view = m_window->menuBar()->addMenu(tr("&View"));
    m_notFitted = m_view->addMenu(tr("&Parts That Are Not Fitted"));
    m_dnpChoices = new QActionGroup(this);
    addDnpChoice(tr("&Leave Out"), tr("Parts that are not fitted are not in the report"), DnpChoice::Exclude);
    addDnpChoice(tr("&Include"), tr("Parts that are not fitted are listed, marked and not counted"),
                 DnpChoice::Include);
    addDnpChoice(tr("&Only These"), tr("Only parts that are not fitted are in the report"), DnpChoice::Only);
    setDnpChoice(DnpChoice::Exclude);
    m_variants = m_view->addMenu(tr("&Variant"));
    m_variantChoices = new QActionGroup(this);
    setVariants({}, {});
    m_view->addSeparator();
    m_panels = m_view->addMenu(tr("&Tool Bars and Panels"));
    connect(m_view, &QMenu::aboutToShow, this, &ProgramMenus::listPanels);
    m_fullScreen = add(m_view, tr("&Full Screen"), tr("Give the window the whole screen, or its place again"),
                       QKeySequence(QStringLiteral("F11")));
    m_fullScreen->setCheckable(true);
    connect(m_fullScreen, &QAction::triggered, this, [this](bool isFull) {
        m_window->setWindowState(m_window->windowState().setFlag(Qt::WindowFullScreen, isFull));
    });
    connect(m_view, &QMenu::aboutToShow, this,
            [this] { m_fullScreen->setChecked(m_window->isFullScreen()); });
    // In no menu of the program's own: the module's menus have it.
    m_reread = new QAction(tr("Read the Design Again"), this);
    m_reread->setStatusTip(tr("Read the files of the design again"));
    m_reread->setIcon(APPLNWIDGET::makeIcon(QStringLiteral(":/bom/icons/reload.png")));
    m_reread->setShortcut(QKeySequence(QStringLiteral("F5")));
    connect(m_reread, &QAction::triggered, this, &ProgramMenus::rereadRequested);
    m_window->addAction(m_reread);
}

/// What the module puts into the window is there only while a design is open.
void ProgramMenus::listPanels()
{
    m_panels->clear();
    // Panels that cannot be closed have disabled actions, other parts of the module's window no title.
    const auto add = [this](QAction *action) {
        if (action->isEnabled() && !action->text().isEmpty()) {
            m_panels->addAction(action);
        }
    };
    const auto bars = m_window->findChildren<QToolBar *>();
    for (const QToolBar *bar : bars) {
        if (qobject_cast<const QMainWindow *>(bar->parentWidget())) {
            add(bar->toggleViewAction());
        }
    }
    const auto panels = m_window->findChildren<QDockWidget *>();
    for (const QDockWidget *panel : panels) {
        add(panel->toggleViewAction());
    }
    m_panels->setEnabled(!m_panels->isEmpty());
}

void ProgramMenus::buildHelp()
{
    m_help = m_window->menuBar()->addMenu(tr("&Help"));
    m_about = add(m_help, tr("&About"), tr("What this program is"));
    connect(m_about, &QAction::triggered, this, &ProgramMenus::aboutRequested);
}

void ProgramMenus::addDnpChoice(const QString &text, const QString &tip, DnpChoice choice)
{
    QAction *action = m_notFitted->addAction(text);
    action->setStatusTip(tip);
    action->setCheckable(true);
    action->setData(int(choice));
    m_dnpChoices->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice] { Q_EMIT dnpChosen(choice); });
}

QAction *ProgramMenus::firstAfterModule() const
{
    return m_view->menuAction();
}

QAction *ProgramMenus::notFittedAction() const
{
    return m_notFitted->menuAction();
}

QAction *ProgramMenus::variantAction() const
{
    return m_variants->menuAction();
}

void ProgramMenus::addShared(unsigned id, const QList<QAction *> &actions)
{
    if (id == HelpMenuId) {
        m_help->insertActions(m_about, actions);
        return;
    }
    m_view->insertActions(m_notFitted->menuAction(), actions);
    m_viewSeparator = m_view->insertSeparator(m_notFitted->menuAction());
}

void ProgramMenus::removeShared(unsigned id, const QList<QAction *> &actions)
{
    for (QAction *action : actions) {
        (id == HelpMenuId ? m_help : m_view)->removeAction(action);
    }
    if (id == ViewMenuId) {
        delete m_viewSeparator;
    }
}

QList<QAction *> ProgramMenus::commands() const
{
    return commands(ACCELERATORS_APPLICATION) + commands(ACCELERATORS_DESIGN);
}

QList<QAction *> ProgramMenus::commands(unsigned table) const
{
    QList<QAction *> found;
    if (table == ACCELERATORS_APPLICATION) {
        found = m_file->actions();
    } else if (table == ACCELERATORS_DESIGN) {
        found = {m_reread, m_fullScreen};
    }
    found.removeIf([](const QAction *action) { return action->shortcut().isEmpty(); });
    return found;
}

void ProgramMenus::setRecentFiles(const QStringList &paths)
{
    m_recent->clear();
    m_recent->setEnabled(!paths.isEmpty());
    int number = 0;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        const QString folder = QDir::toNativeSeparators(file.path());
        const int room = mostOfFolder * m_recent->fontMetrics().averageCharWidth();
        QAction *action = m_recent->addAction(
            numbered(++number, file.fileName()) + QStringLiteral("  (") +
            actionText(m_recent->fontMetrics().elidedText(folder, Qt::ElideMiddle, room)) + u')');
        action->setStatusTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT recentChosen(path); });
    }
    m_recent->addSeparator();
    connect(m_recent->addAction(tr("&Clear This List")), &QAction::triggered, this,
            &ProgramMenus::recentCleared);
}

void ProgramMenus::setOutput(const QString &name)
{
    m_openOutput->setEnabled(!name.isEmpty());
    m_openFolder->setEnabled(!name.isEmpty());
}

void ProgramMenus::setDesignOpen(bool isOpen)
{
    m_close->setEnabled(isOpen);
}

void ProgramMenus::setUndoEnabled(bool isEnabled)
{
    m_undo->setEnabled(isEnabled);
}

void ProgramMenus::setDnpChoice(DnpChoice choice)
{
    for (QAction *action : m_dnpChoices->actions()) {
        action->setChecked(action->data().toInt() == int(choice));
    }
}

void ProgramMenus::setVariants(const QStringList &variants, const QString &current)
{
    m_variants->clear();
    m_variants->menuAction()->setVisible(!variants.isEmpty());
    const auto add = [&](const QString &text, const QString &variant) {
        QAction *action = m_variants->addAction(text);
        action->setCheckable(true);
        action->setChecked(variant == current);
        m_variantChoices->addAction(action);
        connect(action, &QAction::triggered, this, [this, variant] { Q_EMIT variantChosen(variant); });
    };
    add(tr("&As Drawn"), {});
    m_variants->addSeparator();
    for (const QString &variant : variants) {
        add(actionText(variant), variant);
    }
}
