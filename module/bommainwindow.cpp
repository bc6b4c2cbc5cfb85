// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/bommainwindow.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/bomdataview.h"
#include "editors/earlieredits.h"
#include "editors/pendingreview.h"
#include "editors/pendingundo.h"
#include "host/framework/applnframe.h"
#include "host/framework/hostui.h"
#include "host/widgets/waitcursor.h"
#include "module/dockwidget.h"
#include "module/optionspanel.h"
#include "templates/templatestore.h"
#include "views/bomasciiview.h"
#include "views/bomcsvview.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace {

/// The places of the menus in the host's menu bar.
constexpr unsigned editMenuId = 273;
constexpr unsigned generateMenuId = 274;

QString modulePicture(const QString &name)
{
    return QStringLiteral(":/bom/icons/") + name + QStringLiteral(".png");
}

QString hostPicture(const QString &name)
{
    return QStringLiteral(":/quorvel/icons/") + name + QStringLiteral(".png");
}

} // namespace

BOMMainWindow::BOMMainWindow(BOMPartsDatabase *database, const EditStores &stores, QWidget *parent)
    : APPLNWIDGET(parent)
    , m_database(database)
    , m_stores(stores)
{
    setObjectName(QStringLiteral("BOMMainWindowClass"));
    setWindowTitle(tr("Bill of Materials Viewer"));
    connect(m_database, &QObject::destroyed, this, &BOMMainWindow::forgetDatabase);
}

BOMMainWindow::~BOMMainWindow() = default;

bool BOMMainWindow::createwindow(APPLNFRAME *frame)
{
    if (getframe()) {
        return true;
    }
    if (!APPLNWIDGET::createwindow(frame)) {
        return false;
    }
    buildPages();
    buildActions();
    buildMenus();
    buildToolBar();
    connectViews();
    frame->settitle(windowTitle());
    return true;
}

void BOMMainWindow::updatewindow()
{
    if (m_isFilled) {
        m_report->handleBOMDataUpdate();
        m_dataView->handleBOMDataUpdate();
    }
}

void BOMMainWindow::connectViews()
{
    connect(m_database, &BOMPartsDatabase::dataChanged, m_report, &BOMHTMLView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::dataChanged, m_dataView, &BOMDataView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::currentTemplateModified, this,
            &BOMMainWindow::setCurrentTemplateChanged);
    connect(m_report, &BOMHTMLView::currentTemplateModified, this, &BOMMainWindow::setCurrentTemplateChanged);
    connect(m_dataView, &BOMDataView::pendingPropertyAssignments, this, &BOMMainWindow::setPropertiesChanged);
    connect(m_dataView, &BOMDataView::statusMessage, this,
            [this](const QString &text) { getframe()->setstatustext(text); });
    connect(m_options, &OptionsPanel::propertyEditorRequested, this,
            &BOMMainWindow::showGlobalPropertyEditor);
    connect(m_stores.assignments, &PropertyAssignments::changed, this,
            [this] { setPropertiesChanged(!m_stores.assignments->isEmpty()); });
    connect(m_stores.assignments, &PropertyAssignments::historyEnded, this, [this] {
        m_isEarlierOffered = false;
        QTimer::singleShot(0, this, &BOMMainWindow::offerEarlier);
    });
}

void BOMMainWindow::setTemplates(TemplateStore *templates)
{
    m_templates = templates;
    if (templates) {
        connect(templates, &TemplateStore::currentChanged, m_options, &OptionsPanel::showTemplate);
    }
}

void BOMMainWindow::setCurrentTemplateChanged(bool hasChanges)
{
    if (m_templates) {
        m_templates->setModified(hasChanges);
    }
}

void BOMMainWindow::setPropertiesChanged(bool arePending)
{
    m_review->setEnabled(arePending);
}

bool BOMMainWindow::canbeclosed()
{
    // What is typed into an open cell counts.
    if (m_dataView && !m_dataView->endEditing()) {
        return false;
    }
    const bool isTemplateModified = m_templates && m_templates->isModified();
    const qsizetype pending = m_stores.assignments ? m_stores.assignments->size() : 0;
    if (!m_templates || (!isTemplateModified && pending == 0)) {
        return true;
    }
    const QString further =
        pending == 0 ? QString()
                     : tr("%1 changes of properties are pending. Save writes them into the design, Discard "
                          "keeps them for the next time that it is opened.")
                           .arg(pending);
    switch (m_templates->askToSave(true, further)) {
    case HostUi::SaveAnswer::Save:
        return saveChanges();
    case HostUi::SaveAnswer::Discard:
        // The window may stay, and one that is made anew shows what is being worked on.
        if (isTemplateModified) {
            m_templates->discardChanges();
        }
        return true;
    case HostUi::SaveAnswer::Cancel:
        break;
    }
    return false;
}

bool BOMMainWindow::saveChanges()
{
    if (m_templates->isModified() && !m_templates->saveCurrent()) {
        return false;
    }
    if (m_dataView->hasPendingAssignments()) {
        m_dataView->applyPropertyValues();
    }
    return !m_stores.assignments || m_stores.assignments->isEmpty();
}

bool BOMMainWindow::isBusy() const
{
    return m_isReviewing || (m_dataView && m_dataView->isBusy());
}

void BOMMainWindow::fillViews()
{
    if (m_isFilled || !m_report || !m_database) {
        return;
    }
    m_isFilled = true;
    const WaitCursor cursor;
    m_report->setPartsDatabase(m_database);
    m_report->handleBOMDataUpdate();
    m_dataView->setAssignments(m_stores.assignments);
    m_dataView->setPartsDatabase(m_database);
    m_dataView->handleBOMDataUpdate();
    m_options->setPartsDatabase(m_database);
    QTimer::singleShot(0, this, &BOMMainWindow::offerEarlier);
}

void BOMMainWindow::offerEarlier()
{
    if (m_database && m_isFilled && !std::exchange(m_isEarlierOffered, true)) {
        (void)offerEarlierEdits(m_stores.assignments, m_database, this);
    }
}

void BOMMainWindow::forgetDatabase()
{
    m_database = nullptr;
    if (m_report) {
        m_report->setPartsDatabase(nullptr);
        m_dataView->setPartsDatabase(nullptr);
        m_dataView->setAssignments(nullptr);
        m_options->setPartsDatabase(nullptr);
    }
    if (m_excelView) {
        m_excelView->setPartsDatabase(nullptr);
    }
}

void BOMMainWindow::buildPages()
{
    buildTabs();
    // Dock widgets live in main windows only.
    auto *pages = new QMainWindow;
    pages->setWindowFlags(Qt::Widget);
    pages->setCentralWidget(m_tabs);
    m_options = new OptionsPanel;
    auto *dock = new DockWidget;
    dock->setObjectName(QStringLiteral("dockWidget"));
    dock->setContents(m_options);
    pages->addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(pages);
}

void BOMMainWindow::buildTabs()
{
    m_report = new BOMHTMLView;
    m_report->setObjectName(QStringLiteral("bomHTMLView"));
    m_dataView = new BOMDataView;
    m_dataView->setObjectName(QStringLiteral("bomDataView"));
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("tabWidget"));
    m_tabs->setDocumentMode(true);
    const auto addPage = [this](QWidget *view, const QString &name, const QString &title) {
        auto *page = new QWidget;
        page->setObjectName(name);
        auto *layout = new QVBoxLayout(page);
        layout->setContentsMargins({});
        layout->addWidget(view);
        m_tabs->addTab(page, title);
    };
    addPage(m_report, QStringLiteral("bomHTMLViewTab"), tr("BOM Report"));
    addPage(m_dataView, QStringLiteral("bomDataTab"), tr("Property Editor"));
}

QAction *BOMMainWindow::addCommand(const Command &command)
{
    auto *action = new QAction(makeIcon(command.icon), command.text, this);
    action->setStatusTip(command.tip);
    action->setShortcut(command.shortcut);
    // A tip that is shown while a command opens a dialog would stay: nothing tells that the pointer has left.
    const auto clearTip = [this] {
        if (APPLNFRAME *frame = getframe()) {
            frame->setstatustext({});
        }
    };
    connect(action, &QAction::triggered, this, clearTip, Qt::QueuedConnection);
    return action;
}

QAction *BOMMainWindow::addOutput(const Command &command)
{
    QAction *action = addCommand(command);
    connect(action, &QAction::triggered, this, &BOMMainWindow::outputBOM);
    return action;
}

void BOMMainWindow::buildEditActions()
{
    m_undo = m_stores.undo->createUndoAction(this);
    m_undo->setIcon(makeIcon(modulePicture(QStringLiteral("undo"))));
    m_redo = m_stores.undo->createRedoAction(this);
    m_redo->setIcon(makeIcon(modulePicture(QStringLiteral("redo"))));
    m_find = addCommand({tr("&Find Property Values"), modulePicture(QStringLiteral("find")),
                         tr("Find property values"), QKeySequence(QStringLiteral("Ctrl+F"))});
    connect(m_find, &QAction::triggered, this, &BOMMainWindow::showFindDialogue);
    m_replace = addCommand({tr("&Replace Property Values"), modulePicture(QStringLiteral("replace")),
                            tr("Replace property values"), QKeySequence(QStringLiteral("Ctrl+H"))});
    connect(m_replace, &QAction::triggered, this, &BOMMainWindow::showReplaceDialogue);
    m_review = addCommand({tr("Review &Pending Changes…"), modulePicture(QStringLiteral("review")),
                           tr("Show what would be written into the design")});
    connect(m_review, &QAction::triggered, this, &BOMMainWindow::reviewPendingChanges);
    setPropertiesChanged(!m_stores.assignments->isEmpty());
}

void BOMMainWindow::buildActions()
{
    buildEditActions();
    m_reload = addCommand({tr("Reload The &BOM"), {}, tr("Reload the parts in the Bill Of Materials")});
    connect(m_reload, &QAction::triggered, this, &BOMMainWindow::manualReload);
    // In no menu: only its shortcut reaches it.
    m_html = addOutput({tr("&HTML"), modulePicture(QStringLiteral("html")), tr("Output BOM in HTML"),
                        QKeySequence(QStringLiteral("Ctrl+Alt+H"))});
    addAction(m_html);
    m_pdf = addOutput({tr("&PDF"), hostPicture(QStringLiteral("pdf")), tr("Output BOM as a PDF"),
                       QKeySequence(QStringLiteral("Ctrl+P"))});
    m_csv = addOutput({tr("&CSV"), modulePicture(QStringLiteral("csv")), tr("Output BOM in CSV")});
    m_ascii = addOutput({tr("&ASCII"), modulePicture(QStringLiteral("ascii")), tr("Output BOM in ASCII")});
    m_print = addOutput({tr("&Print"), hostPicture(QStringLiteral("print")), tr("Print BOM")});
    m_excel =
        addOutput({tr("&Open In Excel"), modulePicture(QStringLiteral("excel")), tr("Output BOM to Excel")});
    m_setPaper = addCommand({tr("&Set Paper"), modulePicture(QStringLiteral("paper_setup")),
                             tr("Set paper for printing and PDF output")});
    connect(m_setPaper, &QAction::triggered, m_report, &BOMHTMLView::setPageSize);
}

void BOMMainWindow::buildMenus()
{
    auto *edit = new QMenu(tr("&Edit"), this);
    edit->addActions({m_undo, m_redo});
    edit->addSeparator();
    edit->addActions({m_find, m_replace, m_reload});
    edit->addSeparator();
    edit->addAction(m_review);
    addmenu(editMenuId, edit, 0);

    auto *generate = new QMenu(tr("&Generate"), this);
    generate->addActions({m_print, m_pdf});
    generate->addSeparator();
    generate->addActions({m_excel, m_csv, m_ascii});
    generate->addSeparator();
    generate->addAction(m_setPaper);
    addmenu(generateMenuId, generate, 0);
}

void BOMMainWindow::buildToolBar()
{
    auto *bar = new QToolBar(tr("BOM"), this);
    bar->setObjectName(QStringLiteral("bomToolBar"));
    bar->addActions({m_setPaper, m_print, m_pdf});
    bar->addSeparator();
    bar->addActions({m_excel, m_csv});
    bar->addSeparator();
    bar->addActions({m_find, m_replace});
    addtoolbar(bar);
}

bool BOMMainWindow::acceptDuplicates()
{
    QStringList references = m_database->duplicateReferences();
    if (references.isEmpty()) {
        return true;
    }
    references.removeDuplicates();
    return HostUi::current().question(
        this, tr("Duplicate References Detected"),
        tr("The following references have duplicates:\n%1\nGenerate output anyway?")
            .arg(references.join(QStringLiteral(", "))),
        false);
}

void BOMMainWindow::outputBOM()
{
    if (!m_database || !acceptDuplicates()) {
        return;
    }
    const QObject *action = sender();
    if (action == m_pdf) {
        m_report->generatePDF();
    } else if (action == m_print) {
        m_report->print();
    } else if (action == m_html) {
        const WaitCursor cursor;
        m_report->saveHTML();
    } else if (action == m_csv) {
        const WaitCursor cursor;
        BOMCsvView view(this, m_database->currentTemplate().fullTextOuputs());
        view.setPartsDatabase(m_database);
        view.writeOutput();
    } else if (action == m_ascii) {
        const WaitCursor cursor;
        BOMAsciiView view(this);
        view.setPartsDatabase(m_database);
        view.writeOutput();
    } else if (action == m_excel) {
        writeSpreadsheet();
    }
}

void BOMMainWindow::writeSpreadsheet()
{
    const WaitCursor cursor;
    if (!m_excelView) {
        m_excelView = new BOMExcelView(this);
    }
    m_excelView->setPartsDatabase(m_database);
    m_excelView->writeOutput();
}

void BOMMainWindow::manualReload()
{
    if (m_database) {
        m_database->reloadFromFiles();
    }
}

void BOMMainWindow::showGlobalPropertyEditor()
{
    m_tabs->setCurrentWidget(m_dataView->parentWidget());
}

void BOMMainWindow::showFindDialogue()
{
    showGlobalPropertyEditor();
    m_dataView->showFindDialogue();
}

void BOMMainWindow::showReplaceDialogue()
{
    showGlobalPropertyEditor();
    m_dataView->showReplaceDialogue();
}

void BOMMainWindow::reviewPendingChanges()
{
    if (!m_database || m_isReviewing) {
        return;
    }
    const QScopedValueRollback reviewing(m_isReviewing, true);
    PendingReview review(m_stores.assignments, m_database, this);
    if (review.exec() == QDialog::Accepted) {
        m_dataView->applyPropertyValues();
    }
}
