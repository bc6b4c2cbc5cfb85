// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/noteseditor.h"

#include "ui_noteseditor.h"

NotesEditor::NotesEditor(QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::NotesEditor>())
{
    m_ui->setupUi(this);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &NotesEditor::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &NotesEditor::reject);
    m_ui->textEdit->setFocus();
}

NotesEditor::~NotesEditor() = default;

void NotesEditor::setText(const QString &text)
{
    m_found = text;
    // A text that looks like markup is none.
    m_ui->textEdit->setPlainText(text);
}

QString NotesEditor::text() const
{
    // What the document gives lacks some characters, among them the line ends that the notes had.
    return m_ui->textEdit->document()->isModified() ? m_ui->textEdit->toPlainText() : m_found;
}
