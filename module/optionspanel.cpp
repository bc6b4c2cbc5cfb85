// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/optionspanel.h"

#include "core/bompartsdatabase.h"
#include "editors/noteseditor.h"
#include "host/framework/hostui.h"
#include "ui_optionspanel.h"

OptionsPanel::OptionsPanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::OptionsPanel>())
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("dockWidgetContents"));
    m_ui->categoriesTable->setHeaders({tr("Category"), tr("Prefixes")});
    m_ui->fieldsTable->setHeaders({tr("Field"), tr("Property")});
    connectForm();
    setPartsDatabase(nullptr);
}

OptionsPanel::~OptionsPanel() = default;

void OptionsPanel::connectForm()
{
    connect(m_ui->suppressEmptyCatsCheckBx, &QCheckBox::clicked, this, &OptionsPanel::settingsChanged);
    connect(m_ui->groupedRefsRadioBtn, &QRadioButton::clicked, this, &OptionsPanel::settingsChanged);
    connect(m_ui->individualRefsRadioBtn, &QRadioButton::clicked, this, &OptionsPanel::settingsChanged);
    connect(m_ui->fieldsTable, &BOMFieldsTable::showGlobalPropertyEditor, this,
            &OptionsPanel::propertyEditorRequested);
    connect(m_ui->editBomNotesBtn, &QPushButton::clicked, this, &OptionsPanel::editBomNotes);
}

void OptionsPanel::setPartsDatabase(BOMPartsDatabase *database)
{
    m_database = database;
    m_ui->categoriesTable->setPartsDatabase(database);
    m_ui->fieldsTable->setPartsDatabase(database);
    setEnabled(database != nullptr);
    if (!database) {
        return;
    }
    connect(m_ui->fieldsTable, &BOMFieldsTable::bomFieldsUpdated, database,
            &BOMPartsDatabase::updateBOMFields);
    connect(m_ui->categoriesTable, &BOMCategoriesTable::bomCategoriesUpdated, database,
            &BOMPartsDatabase::updateBOMCategories);
    showTemplate();
}

void OptionsPanel::showTemplate()
{
    if (!m_database) {
        return;
    }
    const BOMTemplate &settings = m_database->currentTemplate();
    m_ui->fieldsTable->setFields(settings.fields());
    m_ui->categoriesTable->setCategories(settings.categories());
    m_ui->suppressEmptyCatsCheckBx->setChecked(settings.suppressEmptyCategories());
    m_ui->groupedRefsRadioBtn->setChecked(settings.groupReferences());
    m_ui->individualRefsRadioBtn->setChecked(!settings.groupReferences());
}

void OptionsPanel::settingsChanged()
{
    if (!m_database) {
        return;
    }
    BOMTemplate settings = m_database->currentTemplate();
    settings.setSuppressEmptyCategories(m_ui->suppressEmptyCatsCheckBx->isChecked());
    settings.setGroupReferences(m_ui->groupedRefsRadioBtn->isChecked());
    (void)m_database->setTemplateOptions(settings);
}

void OptionsPanel::editBomNotes()
{
    if (!m_database) {
        return;
    }
    NotesEditor editor(window());
    editor.setText(m_database->notes());
    // What could not be saved is shown again, so that it is not lost.
    while (editor.exec() == QDialog::Accepted && m_database) {
        NotesChoice choice = NotesChoice::KeepMine;
        const auto ask = [this, &choice](const NotesConflict &) { return choice = chooseNotes(); };
        const NotesResult result = m_database->setNotes(editor.text(), ask);
        if (result.problem.isEmpty()) {
            return;
        }
        if (choice != NotesChoice::Cancel) {
            HostUi::current().warning(this, tr("BOM Notes"), result.problem);
        }
    }
}

NotesChoice OptionsPanel::chooseNotes()
{
    switch (HostUi::current().saveQuestion(
        this, tr("BOM Notes"),
        tr("The notes were changed by another program meanwhile. Save yours in their place? With Discard the "
           "other ones are kept and yours are lost."),
        true)) {
    case HostUi::SaveAnswer::Save:
        return NotesChoice::KeepMine;
    case HostUi::SaveAnswer::Discard:
        return NotesChoice::TakeTheirs;
    case HostUi::SaveAnswer::Cancel:
        break;
    }
    return NotesChoice::Cancel;
}
