// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/optionspanel.h"

#include "core/bompartsdatabase.h"
#include "ui_optionspanel.h"

#include <QSignalBlocker>
#include <QWheelEvent>

OptionsPanel::OptionsPanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::OptionsPanel>())
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("dockWidgetContents"));
    m_ui->categoriesTable->setHeaders({tr("Category"), tr("Prefixes")});
    m_ui->fieldsTable->setHeaders({tr("Field"), tr("Property")});
    m_ui->templatesComboBox->installEventFilter(this);
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
    connect(m_ui->templatesComboBox, &QComboBox::currentTextChanged, this, &OptionsPanel::templateChosen);
    connect(m_ui->editTemplateBtn, &QPushButton::clicked, this, &OptionsPanel::headerEditorRequested);
    connect(m_ui->editUserStyleBtn, &QPushButton::clicked, this, &OptionsPanel::styleEditorRequested);
    connect(m_ui->editBomNotesBtn, &QPushButton::clicked, this, &OptionsPanel::notesEditorRequested);
}

void OptionsPanel::setTemplateActions(QAction *save, QAction *create, QAction *remove)
{
    m_ui->saveTemplateBtn->setDefaultAction(save);
    m_ui->newTemplateBtn->setDefaultAction(create);
    m_ui->deleteTemplateBtn->setDefaultAction(remove);
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

void OptionsPanel::setTemplateNames(const QStringList &names, const QString &current)
{
    const QSignalBlocker silent(m_ui->templatesComboBox);
    m_ui->templatesComboBox->clear();
    m_ui->templatesComboBox->addItems(names);
    m_ui->templatesComboBox->setCurrentIndex(int(names.indexOf(current)));
    m_ui->templatesComboBox->setToolTip(current);
}

void OptionsPanel::setTemplateModified(bool isModified)
{
    const QString title = tr("BOM Template");
    m_ui->templatesGroupBox->setTitle(isModified ? title + QStringLiteral(" *") : title);
    m_ui->templatesGroupBox->setToolTip(isModified ? tr("The template has changes that are not saved")
                                                   : QString());
}

void OptionsPanel::showTemplate()
{
    if (!m_database) {
        return;
    }
    showFields();
    const BOMTemplate &settings = m_database->currentTemplate();
    m_ui->categoriesTable->setCategories(settings.categories());
    m_ui->suppressEmptyCatsCheckBx->setChecked(settings.suppressEmptyCategories());
    m_ui->groupedRefsRadioBtn->setChecked(settings.groupReferences());
    m_ui->individualRefsRadioBtn->setChecked(!settings.groupReferences());
}

void OptionsPanel::showFields()
{
    if (m_database) {
        m_ui->fieldsTable->setFields(m_database->currentTemplate().fields());
    }
}

void OptionsPanel::takeOptions(BOMTemplate *settings) const
{
    settings->setSuppressEmptyCategories(m_ui->suppressEmptyCatsCheckBx->isChecked());
    settings->setGroupReferences(m_ui->groupedRefsRadioBtn->isChecked());
}

QString OptionsPanel::templateName() const
{
    return m_ui->templatesComboBox->currentText();
}

bool OptionsPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->templatesComboBox && event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
