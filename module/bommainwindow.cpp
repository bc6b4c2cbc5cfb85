// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/bommainwindow.h"

#include "core/bompartsdatabase.h"
#include "host/framework/applnframe.h"
#include "host/framework/hostui.h"
#include "templates/templatestore.h"
#include "views/bomasciiview.h"
#include "views/bomcsvview.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

/// The places of the menus in the host's menu bar.
constexpr unsigned editMenuId = 273;
constexpr unsigned generateMenuId = 274;

class WaitCursor final
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

QString modulePicture(const QString &name)
{
    return QStringLiteral(":/bom/icons/") + name + QStringLiteral(".png");
}

QString hostPicture(const QString &name)
{
    return QStringLiteral(":/quorvel/icons/") + name + QStringLiteral(".png");
}

} // namespace

BOMMainWindow::BOMMainWindow(BOMPartsDatabase *database, QWidget *parent)
    : APPLNWIDGET(parent)
    , m_database(database)
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
    buildTabs();
    buildActions();
    buildMenus();
    buildToolBar();
    connect(m_database, &BOMPartsDatabase::dataChanged, m_report, &BOMHTMLView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::currentTemplateModified, this,
            &BOMMainWindow::setCurrentTemplateChanged);
    connect(m_report, &BOMHTMLView::currentTemplateModified, this, &BOMMainWindow::setCurrentTemplateChanged);
    frame->settitle(windowTitle());
    return true;
}

void BOMMainWindow::updatewindow()
{
    if (m_isFilled) {
        m_report->handleBOMDataUpdate();
    }
}

void BOMMainWindow::setTemplates(TemplateStore *templates)
{
    m_templates = templates;
}

void BOMMainWindow::setCurrentTemplateChanged(bool hasChanges)
{
    if (m_templates) {
        m_templates->setModified(hasChanges);
    }
}

bool BOMMainWindow::canbeclosed()
{
    if (!m_templates || !m_templates->isModified()) {
        return true;
    }
    switch (m_templates->askToSave(true)) {
    case HostUi::SaveAnswer::Save:
        return m_templates->saveCurrent();
    case HostUi::SaveAnswer::Discard:
        // The window may stay, and one that is made anew shows what is being worked on.
        m_templates->discardChanges();
        return true;
    case HostUi::SaveAnswer::Cancel:
        break;
    }
    return false;
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
}

void BOMMainWindow::forgetDatabase()
{
    m_database = nullptr;
    if (m_report) {
        m_report->setPartsDatabase(nullptr);
    }
    if (m_excelView) {
        m_excelView->setPartsDatabase(nullptr);
    }
}

void BOMMainWindow::buildTabs()
{
    m_report = new BOMHTMLView;
    m_report->setObjectName(QStringLiteral("bomHTMLView"));
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("bomHTMLViewTab"));
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins({});
    pageLayout->addWidget(m_report);
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("tabWidget"));
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(page, tr("BOM Report"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_tabs);
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

void BOMMainWindow::buildActions()
{
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
    edit->addAction(m_reload);
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
