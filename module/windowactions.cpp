// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/windowactions.h"

#include "editors/pendingundo.h"
#include "host/framework/applnframe.h"
#include "host/framework/applnmodule.h"
#include "host/framework/menubar.h"
#include "host/widgets/applnwidget.h"
#include "module/reportoutputs.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QToolBar>

namespace {

QString modulePicture(const QString &name)
{
    return QStringLiteral(":/bom/icons/") + name + QStringLiteral(".png");
}

QString hostPicture(const QString &name)
{
    return QStringLiteral(":/quorvel/icons/") + name + QStringLiteral(".png");
}

} // namespace

WindowActions::WindowActions(APPLNWIDGET *window, PendingUndo *undo, const LookActions &look)
    : m_window(window)
    , m_look(look)
{
    addEditing(undo);
    addOutputs();
    addTemplates();
    help = add({tr("&Bill of Materials"), hostPicture(QStringLiteral("help")),
                tr("Display help for the Bill of Materials module")});
}

QAction *WindowActions::add(const Command &command) const
{
    auto *action = new QAction(APPLNWIDGET::makeIcon(command.icon), command.text, m_window);
    action->setStatusTip(command.tip);
    action->setShortcut(command.shortcut);
    // A tip that is shown while a command opens a dialog would stay: nothing tells that the pointer has left.
    const auto clearTip = [window = m_window] {
        if (APPLNFRAME *frame = window->getframe()) {
            frame->setstatustext({});
        }
    };
    QObject::connect(action, &QAction::triggered, m_window, clearTip, Qt::QueuedConnection);
    return action;
}

void WindowActions::addEditing(PendingUndo *undoStack)
{
    undo = undoStack->createUndoAction(m_window);
    undo->setIcon(APPLNWIDGET::makeIcon(modulePicture(QStringLiteral("undo"))));
    redo = undoStack->createRedoAction(m_window);
    redo->setIcon(APPLNWIDGET::makeIcon(modulePicture(QStringLiteral("redo"))));
    find = add({tr("&Find Property Values"), modulePicture(QStringLiteral("find")),
                tr("Find property values"), QKeySequence(QStringLiteral("Ctrl+F"))});
    replace = add({tr("&Replace Property Values"), modulePicture(QStringLiteral("replace")),
                   tr("Replace property values"), QKeySequence(QStringLiteral("Ctrl+H"))});
    reload = add({tr("Reload The &BOM"), {}, tr("Reload the parts in the Bill Of Materials")});
    review = add({tr("Review &Pending Changes…"), modulePicture(QStringLiteral("review")),
                  tr("Show what would be written into the design")});
}

void WindowActions::addOutputs()
{
    html = add({tr("&HTML"), modulePicture(QStringLiteral("html")), tr("Output BOM in HTML"),
                QKeySequence(QStringLiteral("Ctrl+Alt+H"))});
    m_window->addAction(html);
    pdf = add({tr("&PDF"), hostPicture(QStringLiteral("pdf")), tr("Output BOM as a PDF"),
               QKeySequence(QStringLiteral("Ctrl+P"))});
    csv = add({tr("&CSV"), modulePicture(QStringLiteral("csv")), tr("Output BOM in CSV")});
    ascii = add({tr("&ASCII"), modulePicture(QStringLiteral("ascii")), tr("Output BOM in ASCII")});
    print = add({tr("&Print"), hostPicture(QStringLiteral("print")), tr("Print BOM")});
    excel = add({tr("&Open In Excel"), modulePicture(QStringLiteral("excel")), tr("Output BOM to Excel")});
    // Numbers: Qt would remember a type of the module beyond its end, when its library is unloaded.
    html->setData(int(OutputForm::Html));
    pdf->setData(int(OutputForm::Pdf));
    csv->setData(int(OutputForm::Csv));
    ascii->setData(int(OutputForm::Ascii));
    print->setData(int(OutputForm::Print));
    excel->setData(int(OutputForm::Spreadsheet));
    setPaper = add({tr("&Set Paper"), modulePicture(QStringLiteral("paper_setup")),
                    tr("Set paper for printing and PDF output")});
    advancedSettings = add({tr("Advanced Settings"), {}, tr("Additional BOM settings")});
    fullCsv = new QCheckBox(tr("Full CSV"), m_window);
    fullCsv->setToolTip(tr("One row for each part instead of one for each line of the report"));
    appendNotes = new QCheckBox(tr("Append Project Notes"), m_window);
    appendNotes->setToolTip(tr("The project notes follow the report on paper and in PDF"));
}

void WindowActions::addTemplates()
{
    saveTemplate =
        add({tr("&Save Template"), modulePicture(QStringLiteral("save")), tr("Save BOM template")});
    newTemplate = add({tr("&New Template"), modulePicture(QStringLiteral("add")),
                       tr("Create a BOM template from the current one")});
    deleteTemplate =
        add({tr("&Delete Template"), modulePicture(QStringLiteral("delete")), tr("Delete BOM template")});
    importTemplate = add({tr("&Import Template"), {}, tr("Import a BOM template")});
    exportTemplate = add({tr("&Export Template"), {}, tr("Export the BOM template")});
    resetDefault = add({tr("&Reset Default Template"), {}, tr("Reset the default template")});
    importLegacy = add({tr("Import &Legacy Templates"), {}, tr("Import legacy BOM templates")});
}

QMenu *WindowActions::editMenu() const
{
    auto *menu = new QMenu(tr("&Edit"), m_window);
    menu->addActions({undo, redo});
    menu->addSeparator();
    menu->addActions({find, replace, reload});
    menu->addSeparator();
    menu->addActions(m_look.find);
    menu->addSeparator();
    menu->addAction(review);
    return menu;
}

QMenu *WindowActions::generateMenu() const
{
    auto *menu = new QMenu(tr("&Generate"), m_window);
    menu->addActions({print, pdf});
    menu->addSeparator();
    menu->addActions({excel, csv, ascii});
    menu->addSeparator();
    menu->addActions({setPaper, advancedSettings});
    return menu;
}

QMenu *WindowActions::templatesMenu() const
{
    auto *menu = new QMenu(tr("&Templates"), m_window);
    menu->addActions({saveTemplate, newTemplate, deleteTemplate});
    menu->addSeparator();
    menu->addActions({importTemplate, exportTemplate, resetDefault, importLegacy});
    return menu;
}

QMenu *WindowActions::helpMenu() const
{
    auto *menu = new QMenu(tr("&Help"), m_window);
    menu->addAction(help);
    return menu;
}

QMenu *WindowActions::viewMenu() const
{
    auto *menu = new QMenu(tr("&View"), m_window);
    menu->addActions(m_look.zoom);
    return menu;
}

QToolBar *WindowActions::toolBar() const
{
    auto *bar = new QToolBar(tr("BOM"), m_window);
    bar->setObjectName(QStringLiteral("bomToolBar"));
    bar->addActions({setPaper, print, pdf});
    bar->addWidget(appendNotes);
    bar->addSeparator();
    bar->addActions({excel, csv});
    bar->addWidget(fullCsv);
    bar->addSeparator();
    bar->addActions({find, replace});
    return bar;
}

void WindowActions::joinHostMenus() const
{
    if (MENUBAR *menus = m_window->getframe()->getmenubar()) {
        (void)menus->loadmenus("APPLNMENU", getapplnlanguageinstance(m_window->getowner()));
        menus->setaccelerators(m_window->getkeytranslator(), ACCELERATORS_APPLICATION, ACCELERATORS_REPLACE);
        menus->setaccelerators(m_window->getkeytranslator(), ACCELERATORS_DESIGN, ACCELERATORS_ADD);
    }
}

void WindowActions::deleteOptions()
{
    delete fullCsv;
    delete appendNotes;
}
