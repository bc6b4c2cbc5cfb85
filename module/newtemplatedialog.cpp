// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/newtemplatedialog.h"

#include "ui_newtemplatedialog.h"

NewTemplateDialog::NewTemplateDialog(QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::NewTemplateDialog>())
{
    m_ui->setupUi(this);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &NewTemplateDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &NewTemplateDialog::reject);
    m_ui->nameEdit->setFocus();
}

NewTemplateDialog::~NewTemplateDialog() = default;

QString NewTemplateDialog::name() const
{
    return m_ui->nameEdit->text();
}
