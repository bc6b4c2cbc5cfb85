// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/programmenus.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

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

void ProgramMenus::buildFile()
{
    QMenu *file = m_window->menuBar()->addMenu(tr("&File"));
    m_open = file->addAction(tr("&Open…"));
    m_open->setShortcut(QKeySequence::Open);
    m_open->setStatusTip(tr("Open a schematic, a project or a part list"));
    connect(m_open, &QAction::triggered, this, &ProgramMenus::openRequested);
    m_recent = file->addMenu(tr("Open &Recent"));
    m_undo = file->addAction(tr("&Undo Last Write…"));
    m_undo->setStatusTip(
        tr("Give the files of the design the content that they had before they were written last"));
    m_undo->setEnabled(false);
    connect(m_undo, &QAction::triggered, this, &ProgramMenus::undoRequested);
    connect(file, &QMenu::aboutToShow, this, &ProgramMenus::fileMenuOpening);
    file->addSeparator();
    QAction *quit = file->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    quit->setStatusTip(tr("End the program"));
    connect(quit, &QAction::triggered, m_window, &QWidget::close);
    setRecentFiles({});
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
}

void ProgramMenus::buildHelp()
{
    m_help = m_window->menuBar()->addMenu(tr("&Help"));
    m_about = m_help->addAction(tr("&About"));
    m_about->setStatusTip(tr("What this program is"));
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

void ProgramMenus::addToHelp(const QList<QAction *> &actions)
{
    m_help->insertActions(m_about, actions);
}

void ProgramMenus::removeFromHelp(const QList<QAction *> &actions)
{
    for (QAction *action : actions) {
        m_help->removeAction(action);
    }
}

void ProgramMenus::setRecentFiles(const QStringList &paths)
{
    m_recent->clear();
    m_recent->setEnabled(!paths.isEmpty());
    int number = 0;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        QAction *action = m_recent->addAction(numbered(++number, file.fileName()) + QStringLiteral("  (") +
                                              actionText(QDir::toNativeSeparators(file.path())) + u')');
        action->setStatusTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT recentChosen(path); });
    }
    m_recent->addSeparator();
    connect(m_recent->addAction(tr("&Clear This List")), &QAction::triggered, this,
            &ProgramMenus::recentCleared);
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
