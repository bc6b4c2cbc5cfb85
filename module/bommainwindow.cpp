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
#include "host/widgets/waitcursor.h"
#include "module/legacyoffer.h"
#include "module/newtemplatedialog.h"
#include "module/optionspanel.h"
#include "module/reportoutputs.h"
#include "module/unsavedwork.h"
#include "module/windowactions.h"
#include "module/windowpages.h"
#include "templates/templatestore.h"
#include "views/bomhtmlview.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <utility>

namespace {

/// The places of the menus in the host's menu bar.
constexpr unsigned editMenuId = 273;
constexpr unsigned generateMenuId = 274;
constexpr unsigned templatesMenuId = 275;
constexpr unsigned helpMenuId = 276;
constexpr unsigned viewMenuId = 277;

} // namespace

BOMMainWindow::BOMMainWindow(BOMPartsDatabase *database, const EditStores &stores, QWidget *parent)
    : APPLNWIDGET(parent)
    , m_database(database)
    , m_stores(stores)
    , m_legacyOffer(new LegacyOffer([this] { return isBusy(); }, this))
{
    setObjectName(QStringLiteral("BOMMainWindowClass"));
    setWindowTitle(tr("Bill of Materials Viewer"));
    connect(m_legacyOffer, &LegacyOffer::due, this, &BOMMainWindow::importLegacyTemplates);
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
    m_outputs = std::make_unique<ReportOutputs>(&m_pages->report(), this);
    m_actions = std::make_unique<WindowActions>(
        this, m_stores.undo, LookActions{m_pages->report().findActions(), m_pages->report().zoomActions()});
    buildBars();
    m_actions->joinHostMenus();
    connectActions();
    connectPanel();
    connectViews();
    connectTemplates();
    frame->settitle(windowTitle());
    m_legacyOffer->start();
    return true;
}

void BOMMainWindow::destroywindow()
{
    if (getframe()) {
        m_pages->keepPlaces();
    }
    if (m_actions) {
        m_actions->deleteOptions();
    }
    // Hosts delete the window later; what changes until then it can show nowhere.
    for (QObject *source : {static_cast<QObject *>(m_database), static_cast<QObject *>(m_stores.templates),
                            static_cast<QObject *>(m_stores.assignments)}) {
        if (source) {
            source->disconnect(this);
        }
    }
    forgetDatabase();
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
    addtoolbar(m_actions->toolBar());
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
    OptionsPanel &options = m_pages->options();
    BOMHTMLView &report = m_pages->report();
    options.setTemplateActions(m_actions->saveTemplate, m_actions->newTemplate, m_actions->deleteTemplate);
    connect(m_actions->fullCsv, &QCheckBox::clicked, this, &BOMMainWindow::settingsChanged);
    connect(m_actions->appendNotes, &QCheckBox::clicked, this, &BOMMainWindow::settingsChanged);
    connect(&options, &OptionsPanel::settingsChanged, this, &BOMMainWindow::settingsChanged);
    connect(&options, &OptionsPanel::templateChosen, this, &BOMMainWindow::loadTemplate);
    connect(&options, &OptionsPanel::headerEditorRequested, &report, &BOMHTMLView::editTemplate);
    connect(&options, &OptionsPanel::styleEditorRequested, &report, &BOMHTMLView::editStyleTemplate);
    connect(&options, &OptionsPanel::notesEditorRequested, this, &BOMMainWindow::editBomNotes);
    connect(&options, &OptionsPanel::propertyEditorRequested, this, &BOMMainWindow::showGlobalPropertyEditor);
}

void BOMMainWindow::connectViews()
{
    const auto setModified = qOverload<bool>(&BOMMainWindow::setCurrentTemplateChanged);
    BOMHTMLView &report = m_pages->report();
    BOMDataView &dataView = m_pages->dataView();
    connect(m_database, &BOMPartsDatabase::dataChanged, &dataView, &BOMDataView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::dataChanged, &report, &BOMHTMLView::handleBOMDataUpdate);
    connect(m_database, &BOMPartsDatabase::currentTemplateModified, this, setModified);
    connect(&report, &BOMHTMLView::currentTemplateModified, this, setModified);
    connect(&dataView, &BOMDataView::pendingPropertyAssignments, this, &BOMMainWindow::setPropertiesChanged);
    connect(&dataView, &BOMDataView::statusMessage, this,
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
    connect(store, &TemplateStore::ownCopyMade, this, [this](const QString &name) {
        getframe()->setstatustext(tr("The template '%1' is your own from now on, for every design. Delete "
                                     "Template brings back the one that comes with the program.")
                                      .arg(name));
    });
    showTemplate();
}

void BOMMainWindow::showTemplateNames()
{
    m_pages->options().setTemplateNames(m_stores.templates->templates().names(),
                                        m_stores.templates->currentName());
    m_actions->deleteTemplate->setEnabled(m_stores.templates->canDelete(m_stores.templates->currentName()));
}

void BOMMainWindow::showTemplate()
{
    if (!m_database) {
        return;
    }
    showTemplateNames();
    m_pages->options().showTemplate();
    const BOMTemplate &settings = m_database->currentTemplate();
    m_actions->fullCsv->setChecked(settings.fullTextOuputs());
    m_actions->appendNotes->setChecked(settings.appendNotes());
    showModified();
}

void BOMMainWindow::showModified()
{
    m_pages->options().setTemplateModified(m_stores.templates && m_stores.templates->isModified());
    getframe()->setmodified(m_stores.hasUnsaved());
}

void BOMMainWindow::saveTemplate()
{
    if (m_stores.templates) {
        (void)m_stores.templates->saveCurrent();
    }
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

void BOMMainWindow::deleteTemplate()
{
    if (m_stores.templates) {
        (void)m_stores.templates->deleteCurrent();
    }
}

void BOMMainWindow::resetDefaultTemplate()
{
    if (m_stores.templates) {
        (void)m_stores.templates->resetDefault();
    }
}

void BOMMainWindow::importTemplate()
{
    if (m_stores.templates) {
        (void)m_stores.templates->importTemplate();
    }
}

void BOMMainWindow::exportTemplate()
{
    if (m_stores.templates) {
        (void)m_stores.templates->exportTemplate();
    }
}

void BOMMainWindow::importLegacyTemplates()
{
    if (!m_database || !m_stores.templates) {
        return;
    }
    BOMTemplateImporter importer(m_stores.templates, m_database, this);
    if (m_legacyOffer->take()) {
        importer.explain();
    }
    importer.exec();
    TemplateStore::setLegacyImportDone();
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
    settings.setFullTextOuputs(m_actions->fullCsv->isChecked());
    settings.setAppendNotes(m_actions->appendNotes->isChecked());
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
    if (!m_pages) {
        return true;
    }
    // What is typed into an open cell counts.
    return m_pages->dataView().endEditing() && settleUnsavedWork(m_stores, &m_pages->dataView());
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
    // Now, not when the event loop gets to it: the report then has its width, is laid out once and can get
    // the keyboard.
    (void)m_pages->report().textEdit();
    m_pages->show();
    m_pages->report().setPartsDatabase(m_database);
    m_pages->report().handleBOMDataUpdate();
    m_pages->dataView().setAssignments(m_stores.assignments);
    m_pages->dataView().setPartsDatabase(m_database);
    m_pages->dataView().handleBOMDataUpdate();
    m_pages->options().setPartsDatabase(m_database);
    showTemplate();
    m_pages->takeFocus();
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
    if (m_outputs) {
        m_outputs->forgetDatabase();
    }
}

void BOMMainWindow::outputBOM()
{
    auto *action = qobject_cast<QAction *>(sender());
    if (!m_database || !m_actions->outputs().contains(action)) {
        return;
    }
    auto form = OutputForm(action->data().toInt());
    if (form == OutputForm::Csv && m_actions->fullCsv->isChecked()) {
        form = OutputForm::FullCsv;
    }
    m_outputs->write(form, m_database);
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
