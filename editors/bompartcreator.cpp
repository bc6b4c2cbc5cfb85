// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bompartcreator.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "core/reference.h"
#include "core/referenceformat.h"
#include "host/framework/hostui.h"
#include "host/widgets/waitcursor.h"
#include "ui_bompartcreator.h"

#include <QPushButton>
#include <QRegularExpressionValidator>

#include <optional>

namespace {

QValidator *validator(const QString &pattern, QObject *parent)
{
    return new QRegularExpressionValidator(QRegularExpression(pattern), parent);
}

/// Without blanks around it, which nobody would see in a reference or value.
QString textOf(const QLineEdit *edit)
{
    return edit->text().trimmed();
}

bool isAcceptable(const QLineEdit *edit, QString text)
{
    int position = 0;
    return edit->validator()->validate(text, position) == QValidator::Acceptable;
}

QString escaped(QString text)
{
    return text.replace(u'\'', QStringLiteral("\\'"));
}

QStringList placedReferences(const BOMPartsDatabase &database, const std::optional<QString> &category)
{
    QStringList references;
    for (const Part *part : database.parts()) {
        if (!part->isBOMPart() && (!category || database.categoryOf(part->reference()) == *category)) {
            references.append(part->reference());
        }
    }
    sortReferences(references);
    return references;
}

QStringList bomReferences(const BOMPartsDatabase &database, const QString &parent)
{
    QStringList references;
    for (const BOMPart *part : database.bomParts(parent)) {
        references.append(part->reference());
    }
    return references;
}

} // namespace

BOMPartCreator::BOMPartCreator(PropertyAssignments *assignments, BOMPartsDatabase *database, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::BOMPartCreator>())
    , m_assignments(assignments)
    , m_database(database)
{
    m_ui->setupUi(this);
    setUpWidgets();
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &BOMPartCreator::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &BOMPartCreator::reject);
    if (!m_database || !m_assignments) {
        m_ui->input->setEnabled(false);
        m_ui->CreateBtn->setEnabled(false);
        m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
        return;
    }
    connect(m_ui->categoriesCombo, &QComboBox::currentIndexChanged, this, &BOMPartCreator::updateRefs);
    connect(m_ui->CreateBtn, &QPushButton::clicked, this, &BOMPartCreator::createBOMParts);
    connect(m_database, &BOMPartsDatabase::dataChanged, this,
            [this] { listReferences(ReferenceComboBox::Missing::ChooseNone); });
    m_ui->categoriesCombo->addItem(tr("All"), true);
    for (const QString &heading : m_database->categoryNames()) {
        m_ui->categoriesCombo->addItem(heading);
    }
}

BOMPartCreator::~BOMPartCreator()
{
    // What loses the focus tells it, which the widgets must outlive.
    hide();
}

void BOMPartCreator::setUpWidgets()
{
    m_ui->quantitySpinBox->setRange(1, mostPartsOfADefinition);
    m_ui->refPrefixEdit->setValidator(
        validator(QStringLiteral("^([^\\r\\n{}\"])*[^0-9\\r\\n{}\"\\\\]$"), this));
    m_ui->valueEdit->setValidator(validator(QStringLiteral("^([^\\r\\n{}\"])*[^\\r\\n{}\"\\\\]$"), this));
    m_ui->createdLabel->clear();
}

void BOMPartCreator::setParentReference(const QString &reference)
{
    if (reference.isEmpty()) {
        return;
    }
    m_ui->referenceCombo->setEditText(reference);
    m_ui->referenceCombo->choose();
}

void BOMPartCreator::updateRefs()
{
    listReferences(ReferenceComboBox::Missing::ChooseFirst);
}

void BOMPartCreator::listReferences(ReferenceComboBox::Missing missing)
{
    const QComboBox &categories = *m_ui->categoriesCombo;
    const bool isAll = categories.currentData().toBool();
    const auto category = isAll ? std::nullopt : std::optional(categories.currentText());
    m_ui->referenceCombo->setReferences(placedReferences(*m_database, category), missing);
}

BOMPartCreator::Request BOMPartCreator::request() const
{
    return {m_ui->referenceCombo->reference(), m_ui->quantitySpinBox->value(), textOf(m_ui->refPrefixEdit),
            textOf(m_ui->valueEdit)};
}

QString BOMPartCreator::problem(const Request &asked) const
{
    QString message;
    if (!isAcceptable(m_ui->refPrefixEdit, asked.prefix)) {
        message += tr("The <b>Prefix</b> must not be empty.  Also, it must not end with a number or '\\'.");
    }
    if (!isAcceptable(m_ui->valueEdit, asked.value)) {
        message += tr("<br>The <b>Value</b> must not be empty. Also, it must not end with a '\\'.");
    }
    if (asked.parent.isEmpty()) {
        message += tr("<br>The <b>Parent Part</b> must be one of the list.");
    }
    return message;
}

bool BOMPartCreator::create()
{
    m_ui->quantitySpinBox->interpretText();
    const Request asked = request();
    const QString invalid = problem(asked);
    if (!invalid.isEmpty()) {
        HostUi::current().richWarning(this, tr("Invalid Options"), invalid);
        return false;
    }
    const QStringList before = bomReferences(*m_database, asked.parent);
    QString failure;
    {
        const WaitCursor cursor;
        failure = m_assignments->addBOMParts(asked.parent, asked.quantity, escaped(asked.prefix),
                                             escaped(asked.value));
    }
    if (!failure.isEmpty()) {
        HostUi::current().warning(this, tr("Could not create BOM parts"), failure);
        return false;
    }
    m_created = asked;
    showCreated(asked.parent, before);
    return true;
}

void BOMPartCreator::showCreated(const QString &parent, const QStringList &before)
{
    QStringList created = bomReferences(*m_database, parent);
    created.removeIf([&before](const QString &reference) { return before.contains(reference); });
    m_ui->createdLabel->setText(tr("Created: %1").arg(formatReferences(created, {})));
}

void BOMPartCreator::createBOMParts()
{
    (void)create();
}

void BOMPartCreator::accept()
{
    // Create has made them already, and nothing else was asked for since.
    const bool isDone = m_created != Request() && m_created == request();
    if (isDone || create()) {
        APPLNDIALOG::accept();
    }
}
