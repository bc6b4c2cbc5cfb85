// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/bommainwindow.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/advancedsettings.h"
#include "editors/bomdataview.h"
#include "editors/bomtemplateimporter.h"
#include "editors/earlieredits.h"
#include "editors/noteseditor.h"
#include "editors/pendingreview.h"
#include "editors/pendingundo.h"
#include "host/framework/applnframe.h"
#include "host/framework/applnprocess.h"
#include "host/framework/hostui.h"
#include "host/framework/imodule.h"
#include "host/framework/menubar.h"
#include "host/widgets/waitcursor.h"
#include "module/newtemplatedialog.h"
#include "module/optionspanel.h"
#include "module/windowactions.h"
#include "module/windowpages.h"
#include "templates/templatestore.h"
#include "views/bomasciiview.h"
#include "views/bomcsvview.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
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
constexpr unsigned templatesMenuId = 275;
constexpr unsigned helpMenuId = 276;
constexpr unsigned viewMenuId = 277;

/// How long after the window the import of legacy scripts is offered, in milliseconds.
constexpr int legacyImportDelay = 1200;

} // namespace

BOMMainWindow::BOMMainWindow(BOMPartsDatabase *database, const EditStores &stores, QWidget *parent)
    : APPLNWIDGET(parent)
    , m_database(database)
    , m_stores(stores)
    , m_importLegacyOnStart(TemplateStore::isLegacyImportPending())
{
    setObjectName(QStringLiteral("BOMMainWindowClass"));
    setWindowTitle(tr("Bill of Materials Viewer"));
    // A child: one that waits goes with the window, before the module's library may be unloaded.
    m_legacyImport = new QTimer(this);
    m_legacyImport->setSingleShot(true);
    m_legacyImport->setInterval(legacyImportDelay);
    connect(m_legacyImport, &QTimer::timeout, this, &BOMMainWindow::offerLegacyImport);
    connect(m_database, &QObject::destroyed, this, &BOMMainWindow::forgetDatabase);
}

BOMMainWindow::~BOMMainWindow()
{
    // Before the base does, for which this is no main window any more.
    BOMMainWindow::destroywindow();
}

bool BOMMainWindow::createwindow(APPLNFRAME *frame)
{
    if (getframe()) {
        return true;
    }
    if (!APPLNWIDGET::createwindow(frame)) {
        return false;
    }
    m_pages = new WindowPages;
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_pages);
    m_actions = std::make_unique<WindowActions>(
        this, m_stores.undo, LookActions{m_pages->report().findActions(), m_pages->report().zoomActions()});
    buildBars();
    takeHostMenus();
    connectActions();
    connectPanel();
    connectViews();
    connectTemplates();
    m_pages->tabs().installEventFilter(this);
    frame->settitle(windowTitle());
    if (m_importLegacyOnStart) {
        m_legacyImport->start();
    }
    return true;
}

void BOMMainWindow::destroywindow()
{
    if (getframe()) {
        m_pages->keepPlaces();
    }
    delete m_fullCsv;
    delete m_appendNotes;
    APPLNWIDGET::destroywindow();
}

void BOMMainWindow::updatewindow()
{
    if (m_isFilled) {
        m_pages->report().handleBOMDataUpdate();
        m_pages->dataView().handleBOMDataUpdate();
    }
}

void BOMMainWindow::onactivate(bool isActive)
{
    APPLNWIDGET::onactivate(isActive);
    if (isActive) {
        Q_EMIT activated();
    }
}

bool BOMMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (watched == &m_pages->tabs() && key->modifiers() == Qt::ControlModifier &&
            key->key() == Qt::Key_Tab) {
            return true;
        }
        break;
    }
    default:
        break;
    }
    return APPLNWIDGET::eventFilter(watched, event);
}

void BOMMainWindow::buildBars()
{
    addmenu(editMenuId, m_actions->editMenu(), 0);
    addmenu(generateMenuId, m_actions->generateMenu(), 0);
    addmenu(templatesMenuId, m_actions->templatesMenu(), 0);
    addmenu(helpMenuId, m_actions->helpMenu(), 0);
    addmenu(viewMenuId, m_actions->viewMenu(), 0);
    APPLNPROCESS *process = getapplnprocess();
    IMODULE *project = process ? process->getmoduleinterface(nullptr, INTERFACE_PROJECT) : nullptr;
    if (project) {
        addctrlbar(static_cast<IPROJECT *>(project)->createctrlbar(this), CTRLBAR_FIRST_ROW, CTRLBAR_TOP);
    }
    m_fullCsv = new QCheckBox(tr("Full CSV"), this);
    m_fullCsv->setToolTip(tr("One row for each part instead of one for each line of the report"));
    m_appendNotes = new QCheckBox(tr("Append Project Notes"), this);
    m_appendNotes->setToolTip(tr("The project notes follow the report on paper and in PDF"));
    addtoolbar(m_actions->toolBar(m_appendNotes, m_fullCsv));
}

void BOMMainWindow::takeHostMenus()
{
    if (MENUBAR *menus = getframe()->getmenubar()) {
        (void)menus->loadmenus("APPLNMENU", getapplnlanguageinstance(getowner()));
        menus->setaccelerators(getkeytranslator(), ACCELERATORS_APPLICATION, ACCELERATORS_REPLACE);
        menus->setaccelerators(getkeytranslator(), ACCELERATORS_DESIGN, ACCELERATORS_ADD);
    }
}

void BOMMainWindow::connectActions()
{
    const auto run = [this](QAction *action, auto slot) { connect(action, &QAction::triggered, this, slot); };
    for (QAction *output : m_actions->outputs()) {
        run(output, &BOMMainWindow::outputBOM);
    }
    run(m_actions->find, &BOMMainWindow::showFindDialogue);
    run(m_actions->replace, &BOMMainWindow::showReplaceDialogue);
    run(m_actions->reload, &BOMMainWindow::manualReload);
    run(m_actions->review, &BOMMainWindow::reviewPendingChanges);
    run(m_actions->advancedSettings, &BOMMainWindow::configureAdvancedSettings);
    run(m_actions->saveTemplate, &BOMMainWindow::saveTemplate);
    run(m_actions->newTemplate, &BOMMainWindow::newTemplate);
    run(m_actions->deleteTemplate, &BOMMainWindow::deleteTemplate);
    run(m_actions->importTemplate, &BOMMainWindow::importTemplate);
    run(m_actions->exportTemplate, &BOMMainWindow::exportTemplate);
    run(m_actions->resetDefault, &BOMMainWindow::resetDefaultTemplate);
    run(m_actions->importLegacy, &BOMMainWindow::importLegacyTemplates);
    connect(m_actions->setPaper, &QAction::triggered, &m_pages->report(), &BOMHTMLView::setPageSize);
    sethelpaction(m_actions->help);
}

void BOMMainWindow::connectPanel()
{
    m_pages->options().setTemplateActions(m_actions->saveTemplate, m_actions->newTemplate,
                                          m_actions->deleteTemplate);
    connect(m_fullCsv, &QCheckBox::clicked, this, &BOMMainWindow::settingsChanged);
    connect(m_appendNotes, &QCheckBox::clicked, this, &BOMMainWindow::settingsChanged);
    connect(&m_pages->options(), &OptionsPanel::settingsChanged, this, &BOMMainWindow::settingsChanged);
    connect(&m_pages->options(), &OptionsPanel::templateChosen, this, &BOMMainWindow::loadTemplate);
    connect(&m_pages->options(), &OptionsPanel::headerEditorRequested, &m_pages->report(),
            &BOMHTMLView::editTemplate);
    connect(&m_pages->options(), &OptionsPanel::styleEditorRequested, &m_pages->report(),
            &BOMHTMLView::editStyleTemplate);
    connect(&m_pages->options(), &OptionsPanel::notesEditorRequested, this, &BOMMainWindow::editBomNotes);
    connect(&m_pages->options(), &OptionsPanel::propertyEditorRequested, this,
            &BOMMainWindow::showGlobalPropertyEditor);
}

void BOMMainWindow::connectViews()
{
    const auto setModified = qOverload<bool>(&BOMMainWindow::setCurrentTemplateChanged);
    connect(m_database, &BOMPartsDatabase::dataChanged, &m_pages->dataView(),
            &BOMDataView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::dataChanged, &m_pages->report(),
            &BOMHTMLView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::currentTemplateModified, this, setModified);
    connect(&m_pages->report(), &BOMHTMLView::currentTemplateModified, this, setModified);
    connect(&m_pages->dataView(), &BOMDataView::pendingPropertyAssignments, this,
            &BOMMainWindow::setPropertiesChanged);
    connect(&m_pages->dataView(), &BOMDataView::statusMessage, this,
            [this](const QString &text) { getframe()->setstatustext(text); });
    connect(m_stores.assignments, &PropertyAssignments::changed, this,
            [this] { setPropertiesChanged(!m_stores.assignments->isEmpty()); });
    connect(m_stores.assignments, &PropertyAssignments::historyEnded, this, [this] {
        m_isEarlierOffered = false;
        QMetaObject::invokeMethod(this, &BOMMainWindow::offerEarlier, Qt::QueuedConnection);
    });
    setPropertiesChanged(!m_stores.assignments->isEmpty());
}

void BOMMainWindow::connectTemplates()
{
    TemplateStore *store = m_stores.templates;
    connect(store, &TemplateStore::namesChanged, this, &BOMMainWindow::showTemplateNames);
    connect(store, &TemplateStore::currentChanged, this, &BOMMainWindow::showTemplate);
    connect(store, &TemplateStore::modifiedChanged, this, &BOMMainWindow::showModified);
    showTemplate();
}

void BOMMainWindow::showTemplateNames()
{
    m_pages->options().setTemplateNames(m_stores.templates->templates().names(),
                                        m_stores.templates->currentName());
}

void BOMMainWindow::showTemplate()
{
    if (!m_database) {
        return;
    }
    showTemplateNames();
    m_pages->options().showTemplate();
    const BOMTemplate &settings = m_database->currentTemplate();
    m_fullCsv->setChecked(settings.fullTextOuputs());
    m_appendNotes->setChecked(settings.appendNotes());
    m_actions->deleteTemplate->setEnabled(m_stores.templates->canDelete(m_stores.templates->currentName()));
    showModified();
}

void BOMMainWindow::showModified()
{
    const bool isTemplateModified = m_stores.templates && m_stores.templates->isModified();
    m_pages->options().setTemplateModified(isTemplateModified);
    getframe()->setmodified(isTemplateModified || (m_stores.assignments && !m_stores.assignments->isEmpty()));
}

void BOMMainWindow::saveTemplate()
{
    runOnTemplates(&TemplateStore::saveCurrent);
}

void BOMMainWindow::loadTemplate(const QString &templateName)
{
    if (m_stores.templates) {
        (void)m_stores.templates->select(templateName);
    }
}

void BOMMainWindow::newTemplate()
{
    if (!m_stores.templates) {
        return;
    }
    NewTemplateDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted && m_stores.templates) {
        (void)m_stores.templates->createTemplate(dialog.name());
    }
}

void BOMMainWindow::runOnTemplates(bool (TemplateStore::*command)())
{
    if (m_stores.templates) {
        (void)(m_stores.templates->*command)();
    }
}

void BOMMainWindow::deleteTemplate()
{
    runOnTemplates(&TemplateStore::deleteCurrent);
}

void BOMMainWindow::resetDefaultTemplate()
{
    runOnTemplates(&TemplateStore::resetDefault);
}

void BOMMainWindow::importTemplate()
{
    runOnTemplates(&TemplateStore::importTemplate);
}

void BOMMainWindow::exportTemplate()
{
    runOnTemplates(&TemplateStore::exportTemplate);
}

void BOMMainWindow::importLegacyTemplates()
{
    if (!m_database || !m_stores.templates) {
        return;
    }
    BOMTemplateImporter importer(m_stores.templates, m_database, this);
    if (std::exchange(m_importLegacyOnStart, false)) {
        importer.explain();
    }
    importer.exec();
    TemplateStore::setLegacyImportDone();
}

void BOMMainWindow::offerLegacyImport()
{
    // Not on top of what the user or the program has opened meanwhile.
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() || isBusy()) {
        m_legacyImport->start();
    } else if (m_importLegacyOnStart) {
        importLegacyTemplates();
    }
}

void BOMMainWindow::setCurrentTemplateChanged(bool hasChanges)
{
    if (m_stores.templates) {
        m_stores.templates->setModified(hasChanges);
    }
}

void BOMMainWindow::setPropertiesChanged(bool arePending)
{
    m_actions->review->setEnabled(arePending);
    showModified();
}

void BOMMainWindow::settingsChanged()
{
    if (!m_database) {
        return;
    }
    BOMTemplate settings = m_database->currentTemplate();
    m_pages->options().takeOptions(&settings);
    settings.setFullTextOuputs(m_fullCsv->isChecked());
    settings.setAppendNotes(m_appendNotes->isChecked());
    (void)m_database->setTemplateOptions(settings);
}

void BOMMainWindow::configureAdvancedSettings()
{
    if (!m_database) {
        qDebug("BOMMainWindow::configureAdvancedSettings bad call");
        return;
    }
    AdvancedSettings dialog(m_database, m_stores.templates && m_stores.templates->isModified(), this);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    manualReload();
    if (isAccepted) {
        m_pages->options().showFields();
    }
}

bool BOMMainWindow::canbeclosed()
{
    // What is typed into an open cell counts.
    if (m_pages && !m_pages->dataView().endEditing()) {
        return false;
    }
    const bool isTemplateModified = m_stores.templates && m_stores.templates->isModified();
    const qsizetype pending = m_stores.assignments ? m_stores.assignments->size() : 0;
    if (!m_stores.templates || (!isTemplateModified && pending == 0)) {
        return true;
    }
    const QString further =
        pending == 0 ? QString()
                     : tr("%1 changes of properties are pending. Save writes them into the design, Discard "
                          "keeps them for the next time that it is opened.")
                           .arg(pending);
    switch (m_stores.templates->askToSave(true, further)) {
    case HostUi::SaveAnswer::Save:
        return saveChanges();
    case HostUi::SaveAnswer::Discard:
        // The window may stay, and one that is made anew shows what is being worked on.
        if (isTemplateModified) {
            m_stores.templates->discardChanges();
        }
        return true;
    case HostUi::SaveAnswer::Cancel:
        break;
    }
    return false;
}

bool BOMMainWindow::saveChanges()
{
    if (m_stores.templates->isModified() && !m_stores.templates->saveCurrent()) {
        return false;
    }
    if (m_pages->dataView().hasPendingAssignments()) {
        m_pages->dataView().applyPropertyValues();
    }
    return !m_stores.assignments || m_stores.assignments->isEmpty();
}

bool BOMMainWindow::isBusy() const
{
    return m_isReviewing || (m_pages && m_pages->dataView().isBusy());
}

void BOMMainWindow::fillViews()
{
    if (m_isFilled || !m_pages || !m_database) {
        return;
    }
    m_isFilled = true;
    const WaitCursor cursor;
    // Now, not when the event loop gets to it: the report then has its width, and is laid out once.
    m_pages->show();
    m_pages->report().setPartsDatabase(m_database);
    m_pages->report().handleBOMDataUpdate();
    m_pages->dataView().setAssignments(m_stores.assignments);
    m_pages->dataView().setPartsDatabase(m_database);
    m_pages->dataView().handleBOMDataUpdate();
    m_pages->options().setPartsDatabase(m_database);
    showTemplate();
    QMetaObject::invokeMethod(this, &BOMMainWindow::offerEarlier, Qt::QueuedConnection);
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
    if (m_pages) {
        m_pages->report().setPartsDatabase(nullptr);
        m_pages->dataView().setPartsDatabase(nullptr);
        m_pages->dataView().setAssignments(nullptr);
        m_pages->options().setPartsDatabase(nullptr);
    }
    if (m_excelView) {
        m_excelView->setPartsDatabase(nullptr);
    }
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
    if (action == m_actions->pdf) {
        m_pages->report().generatePDF();
    } else if (action == m_actions->print) {
        m_pages->report().print();
    } else if (action == m_actions->html) {
        const WaitCursor cursor;
        m_pages->report().saveHTML();
    } else if (action == m_actions->csv) {
        const WaitCursor cursor;
        BOMCsvView view(this, m_fullCsv->isChecked());
        view.setPartsDatabase(m_database);
        view.writeOutput();
    } else if (action == m_actions->ascii) {
        const WaitCursor cursor;
        BOMAsciiView view(this);
        view.setPartsDatabase(m_database);
        view.writeOutput();
    } else if (action == m_actions->excel) {
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
    m_pages->showPropertyEditor();
}

void BOMMainWindow::showFindDialogue()
{
    showGlobalPropertyEditor();
    m_pages->dataView().showFindDialogue();
}

void BOMMainWindow::showReplaceDialogue()
{
    showGlobalPropertyEditor();
    m_pages->dataView().showReplaceDialogue();
}

void BOMMainWindow::editBomNotes()
{
    if (m_database) {
        editNotes(m_database, this);
    }
}

void BOMMainWindow::reviewPendingChanges()
{
    if (!m_database || m_isReviewing) {
        return;
    }
    const QScopedValueRollback reviewing(m_isReviewing, true);
    PendingReview review(m_stores.assignments, m_database, this);
    if (review.exec() == QDialog::Accepted) {
        m_pages->dataView().applyPropertyValues();
    }
}
