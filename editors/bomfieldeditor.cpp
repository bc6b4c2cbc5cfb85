// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomfieldeditor.h"

#include "core/bompartsdatabase.h"
#include "core/propertyquery.h"
#include "editors/columntitle.h"
#include "editors/physicalpropertycreator.h"
#include "host/framework/hostui.h"
#include "host/propdefs/propdefsfile.h"
#include "ui_bomfieldeditor.h"

#include <QCompleter>
#include <QIntValidator>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// More digits a number does not have.
constexpr int mostDecimalPlaces = 15;

DIDX definedProperties()
{
    DIDX defined;
    PROPTEXT text;
    (void)load_defaultdefs(&defined, &text);
    return defined;
}

/// What a user may want a column of: what the design has, what is defined, what every part has. The value has
/// its column always.
QStringList offeredProperties(const BOMPartsDatabase *database)
{
    QStringList names = database ? database->propertyNames() : QStringList();
    const auto add = [&names](const QString &name) {
        if (!names.contains(name, Qt::CaseInsensitive)) {
            names.append(name);
        }
    };
    const DIDX defined = definedProperties();
    for (const PROPDEF &definition : defined.definitions()) {
        add(definition.name);
    }
    for (const QString &name : standardPropertyNames()) {
        add(name);
    }
    names.removeIf(
        [](const QString &name) { return name.compare(valueProperty(), Qt::CaseInsensitive) == 0; });
    return names;
}

} // namespace

BOMFieldEditor::BOMFieldEditor(BOMPartsDatabase *database, const BOMField &field, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::BOMFieldEditor>())
    , m_database(database)
    , m_field(field)
{
    m_ui->setupUi(this);
    m_ui->newPropertyBtn->setEnabled(m_database);
    m_ui->floatingPrecisionLineEdit->setValidator(new QIntValidator(0, mostDecimalPlaces, this));
    QCompleter *completer = m_ui->propertyNameCombo->completer();
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setFilterMode(Qt::MatchContains);
    alignFields();
    fillProperties();
    showField();
    connectWidgets();
}

BOMFieldEditor::~BOMFieldEditor()
{
    // What loses the focus tells it, which the widgets must outlive.
    hide();
}

void BOMFieldEditor::fillProperties()
{
    m_ui->propertyNameCombo->clear();
    m_ui->propertyNameCombo->addItems(offeredProperties(m_database));
    m_ui->propertyNameCombo->setCurrentIndex(-1);
}

void BOMFieldEditor::connectWidgets()
{
    connect(m_ui->propertyNameCombo, &QComboBox::currentIndexChanged, this,
            &BOMFieldEditor::resetColumnTitle);
    connect(m_ui->propertyNameCombo->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (m_ui->fieldTitleEdit->text().isEmpty()) {
            resetColumnTitle();
        }
    });
    connect(m_ui->newPropertyBtn, &QPushButton::clicked, this, &BOMFieldEditor::defineNewProperty);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &BOMFieldEditor::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &BOMFieldEditor::reject);
}

/// The groups have layouts of their own, whose columns shall stand below each other.
void BOMFieldEditor::alignFields()
{
    QLabel *const labels[] = {m_ui->propertyNameLabel,     m_ui->fieldTitleLabel, m_ui->prefixLabel,
                              m_ui->suffixLabel,           m_ui->fieldWidthLabel, m_ui->fieldLinesLabel,
                              m_ui->floatingPrecisionLabel};
    int width = 0;
    for (const QLabel *label : labels) {
        width = std::max(width, label->sizeHint().width());
    }
    for (QLabel *label : labels) {
        label->setMinimumWidth(width);
    }
}

void BOMFieldEditor::showField()
{
    QComboBox &property = *m_ui->propertyNameCombo;
    property.setCurrentIndex(
        property.findText(m_field.propertyName, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    property.setEditText(m_field.propertyName);
    property.lineEdit()->home(false);
    m_ui->fieldTitleEdit->setText(m_field.fieldName);
    m_ui->externalLinksCheckBox->setChecked(m_field.enableLinks);
    m_ui->prefixEdit->setText(m_field.prefix);
    m_ui->suffixEdit->setText(m_field.suffix);
    m_ui->applyToEmptyValuesCheckBox->setChecked(m_field.applyToEmpty);
    m_ui->fieldWidthSpinBox->setLimit(m_field.fieldWidth);
    m_ui->fieldLinesSpinBox->setLimit(m_field.fieldLines);
    m_ui->generateTotalsCheckbox->setChecked(m_field.generateTotals);
    m_ui->floatingPrecisionLineEdit->setText(QString::number(m_field.precision));
}

QString BOMFieldEditor::propertyName() const
{
    const QComboBox &property = *m_ui->propertyNameCombo;
    const QString text = property.currentText();
    if (text == m_field.propertyName ||
        property.findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive) >= 0) {
        return text;
    }
    // The same name in other letters is that property.
    const int listed = property.findText(text.trimmed(), Qt::MatchFixedString);
    return listed >= 0 ? property.itemText(listed) : text.trimmed();
}

BOMField BOMFieldEditor::field() const
{
    BOMField edited = m_field;
    edited.propertyName = propertyName();
    const QString title = m_ui->fieldTitleEdit->text();
    edited.fieldName = title == m_field.fieldName ? title : title.trimmed();
    edited.enableLinks = m_ui->externalLinksCheckBox->isChecked();
    edited.prefix = m_ui->prefixEdit->text();
    edited.suffix = m_ui->suffixEdit->text();
    edited.applyToEmpty = m_ui->applyToEmptyValuesCheckBox->isChecked();
    edited.fieldWidth = m_ui->fieldWidthSpinBox->limit();
    edited.fieldLines = m_ui->fieldLinesSpinBox->limit();
    edited.generateTotals = m_ui->generateTotalsCheckbox->isChecked();
    edited.precision = m_ui->floatingPrecisionLineEdit->text().toInt();
    return edited;
}

void BOMFieldEditor::accept()
{
    // Return acts before a number being typed has reached its spin box's value.
    m_ui->fieldWidthSpinBox->interpretText();
    m_ui->fieldLinesSpinBox->interpretText();
    const std::optional<Refusal> refusal = m_check ? m_check(field()) : std::nullopt;
    if (refusal) {
        HostUi::current().information(this, refusal->title, refusal->text);
        return;
    }
    APPLNDIALOG::accept();
}

void BOMFieldEditor::resetColumnTitle()
{
    const QString property = propertyName();
    if (property.isEmpty()) {
        return;
    }
    const DIDX defined = definedProperties();
    const PROPDEF *definition = defined.find(property);
    const QString description = definition ? definition->description : QString();
    const QString known = pseudoPropertyNames().value(property, columnTitle(property));
    m_ui->fieldTitleEdit->setText(description.isEmpty() ? known : description);
}

void BOMFieldEditor::defineNewProperty()
{
    const QPointer<BOMFieldEditor> guard(this);
    const QPointer<PhysicalPropertyCreator> creator = new PhysicalPropertyCreator(m_database, this);
    QComboBox &property = *m_ui->propertyNameCombo;
    if (!property.currentText().isEmpty() && !definedProperties().find(property.currentText())) {
        creator->addPropertyName(property.currentText());
    }
    const bool isDefined = creator->exec() == QDialog::Accepted;
    if (!guard || !creator) {
        return;
    }
    creator->deleteLater();
    if (!isDefined) {
        return;
    }
    {
        const QSignalBlocker blocker(property);
        fillProperties();
    }
    property.setCurrentIndex(
        property.findText(creator->propertyName(), Qt::MatchFixedString | Qt::MatchCaseSensitive));
}
