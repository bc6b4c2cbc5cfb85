// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bompartremover.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "core/reference.h"
#include "host/framework/hostui.h"
#include "host/widgets/waitcursor.h"
#include "ui_bompartremover.h"

#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>

namespace {

QStringList parentReferences(const BOMPartsDatabase &database)
{
    QSet<QString> parents;
    for (const Part *part : database.parts()) {
        if (part->isBOMPart()) {
            parents.insert(static_cast<const BOMPart *>(part)->parentReference());
        }
    }
    QStringList sorted = parents.values();
    sorted.sort();
    sortReferences(sorted);
    return sorted;
}

} // namespace

BOMPartRemover::BOMPartRemover(PropertyAssignments *assignments, BOMPartsDatabase *database, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::BOMPartRemover>())
    , m_assignments(assignments)
    , m_database(database)
{
    m_ui->setupUi(this);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &BOMPartRemover::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &BOMPartRemover::reject);
    connect(m_ui->parentRefCombo, &QComboBox::currentIndexChanged, this, &BOMPartRemover::updateBOMRefs);
    connect(m_ui->bomPartRefCombo, &QComboBox::currentIndexChanged, this, &BOMPartRemover::showValue);
    connect(m_ui->removeBtn, &QPushButton::clicked, this, &BOMPartRemover::removeBOMPart);
    if (m_database && m_assignments) {
        connect(m_database, &BOMPartsDatabase::dataChanged, this, &BOMPartRemover::showParents);
        showParents();
    } else {
        m_ui->input->setEnabled(false);
    }
    showValue();
}

BOMPartRemover::~BOMPartRemover()
{
    // What loses the focus tells it, which the widgets must outlive.
    hide();
}

void BOMPartRemover::showParents()
{
    // Nothing takes the place of a part that is gone: it would be removed instead.
    constexpr auto none = ReferenceComboBox::Missing::ChooseNone;
    {
        const QSignalBlocker blocker(m_ui->parentRefCombo);
        m_ui->parentRefCombo->setReferences(parentReferences(*m_database), none);
    }
    listBOMRefs(none);
}

void BOMPartRemover::setReference(const QString &reference)
{
    const Part *part = m_database ? m_database->part(reference) : nullptr;
    if (!part) {
        return;
    }
    const bool isBOMPart = part->isBOMPart();
    if (!isBOMPart && m_database->bomParts(reference).isEmpty()) {
        return;
    }
    m_ui->parentRefCombo->setEditText(isBOMPart ? static_cast<const BOMPart *>(part)->parentReference()
                                                : reference);
    m_ui->parentRefCombo->choose();
    if (isBOMPart) {
        m_ui->bomPartRefCombo->setEditText(reference);
        m_ui->bomPartRefCombo->choose();
    }
}

void BOMPartRemover::updateBOMRefs()
{
    listBOMRefs(ReferenceComboBox::Missing::ChooseFirst);
}

void BOMPartRemover::listBOMRefs(ReferenceComboBox::Missing missing)
{
    QStringList references;
    if (m_database) {
        for (const BOMPart *part : m_database->bomParts(m_ui->parentRefCombo->reference())) {
            references.append(part->reference());
        }
    }
    sortReferences(references);
    m_ui->bomPartRefCombo->setReferences(references, missing);
    showValue();
}

void BOMPartRemover::showValue()
{
    const Part *chosen = m_database ? m_database->part(m_ui->bomPartRefCombo->reference()) : nullptr;
    m_ui->valueLabel->setText(chosen ? chosen->value() : QString());
    m_ui->removeBtn->setEnabled(chosen);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(chosen);
}

void BOMPartRemover::accept()
{
    removeBOMPart();
}

void BOMPartRemover::removeBOMPart()
{
    m_ui->parentRefCombo->choose();
    m_ui->bomPartRefCombo->choose();
    const QString parent = m_ui->parentRefCombo->reference();
    const QString reference = m_ui->bomPartRefCombo->reference();
    if (parent.isEmpty() || reference.isEmpty()) {
        return;
    }
    QString failure;
    {
        const WaitCursor cursor;
        failure = m_assignments->removeBOMPart(parent, reference);
    }
    if (!failure.isEmpty()) {
        HostUi::current().warning(this, tr("Could not remove the BOM part"), failure);
        return;
    }
    APPLNDIALOG::accept();
}
