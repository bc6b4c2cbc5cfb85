// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/physicalpropertycreator.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "host/propdefs/propdefsfile.h"
#include "ui_physicalpropertycreator.h"

#include <QPushButton>
#include <QRegularExpressionValidator>

namespace {

/// What the entries of the type box carry. These are not the numbers of PropType.
enum TypeCode
{
    YesNoCode = 0,
    TrueFalseCode = 1,
    StringCode = 2,
    IntCode = 4,
    FloatCode = 5,
};

PropType typeOfCode(int code)
{
    switch (code) {
    case YesNoCode:
        return PropType::YesNo;
    case TrueFalseCode:
        return PropType::TrueFalse;
    case IntCode:
        return PropType::Int;
    case FloatCode:
        return PropType::Float;
    default:
        return PropType::String;
    }
}

QValidator *validator(const QString &pattern, QObject *parent)
{
    const QRegularExpression expression(pattern, QRegularExpression::UseUnicodePropertiesOption);
    return new QRegularExpressionValidator(expression, parent);
}

} // namespace

PhysicalPropertyCreator::PhysicalPropertyCreator(BOMPartsDatabase *database, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::PhysicalPropertyCreator>())
    , m_database(database)
{
    m_ui->setupUi(this);
    fillTypes();
    setValidators();
    m_skip = m_ui->buttonBox->addButton(tr("&Skip"), QDialogButtonBox::ActionRole);
    m_skip->setObjectName(QStringLiteral("skipButton"));
    m_skip->setAutoDefault(false);
    m_skip->setToolTip(tr("Go on to the next name without defining this one"));
    m_skip->hide();
    connect(m_skip, &QPushButton::clicked, this, &PhysicalPropertyCreator::skip);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this,
            &PhysicalPropertyCreator::createNewPhysicalProperty);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &PhysicalPropertyCreator::reject);
    m_ui->nameEdit->setFocus();
}

PhysicalPropertyCreator::~PhysicalPropertyCreator() = default;

void PhysicalPropertyCreator::fillTypes()
{
    QComboBox &box = *m_ui->propertyTypeComboBox;
    box.addItem(tr("String"), StringCode);
    box.addItem(tr("Float"), FloatCode);
    box.addItem(tr("Integer"), IntCode);
    box.addItem(tr("Boolean (Yes/No)"), YesNoCode);
    box.addItem(tr("Boolean (True/False)"), TrueFalseCode);
}

void PhysicalPropertyCreator::setValidators()
{
    m_ui->nameEdit->setValidator(validator(QStringLiteral("[A-Za-z][A-Za-z0-9_]{0,62}"), this));
    m_ui->descEdit->setValidator(validator(QStringLiteral("[\\w\\s_.\\-/()]+"), this));
}

void PhysicalPropertyCreator::addPropertyName(const QString &name)
{
    m_names.append(name);
    if (m_hasProposal) {
        m_skip->show();
    } else {
        proposeNext();
    }
}

QString PhysicalPropertyCreator::propertyName() const
{
    return m_ui->nameEdit->text().simplified();
}

bool PhysicalPropertyCreator::proposeNext()
{
    if (m_names.isEmpty()) {
        return false;
    }
    m_hasProposal = true;
    m_ui->nameEdit->setText(m_names.takeFirst());
    m_ui->nameEdit->selectAll();
    m_ui->nameEdit->setFocus();
    m_ui->descEdit->clear();
    m_ui->propertyTypeComboBox->setCurrentIndex(0);
    m_skip->setVisible(!m_names.isEmpty());
    return true;
}

void PhysicalPropertyCreator::skip()
{
    proposeNext();
}

void PhysicalPropertyCreator::createNewPhysicalProperty()
{
    const QString failure = define();
    if (!failure.isEmpty()) {
        HostUi::current().warning(this, tr("Failed to create property"), failure);
        return;
    }
    if (!proposeNext()) {
        accept();
    }
}

QString PhysicalPropertyCreator::define()
{
    if (!m_database) {
        return tr("Unknown error");
    }
    QString name = propertyName();
    int position = 0;
    if (m_ui->nameEdit->validator()->validate(name, position) != QValidator::Acceptable) {
        return tr("You must enter a valid property name");
    }
    const QString notWritten = tr("Creation failed.  Please ensure 'PROPDEFS.INI' is writeable.");
    DIDX defined;
    PROPTEXT text;
    if (!load_defaultdefs(&defined, &text)) {
        return notWritten;
    }
    if (defined.find(name)) {
        return tr("Physical Property already defined");
    }
    const PropType type = typeOfCode(m_ui->propertyTypeComboBox->currentData().toInt());
    text.add(QStringLiteral("PROPDEFS"), format_propdefs({name, type, m_ui->descEdit->text().simplified()}));
    if (!save_defaultdefs(text)) {
        return notWritten;
    }
    m_database->updatePropertyTypes();
    return {};
}
