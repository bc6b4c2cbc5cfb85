// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/noteseditor.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "ui_noteseditor.h"

#include <QPointer>

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

bool NotesEditor::hasTypedText() const
{
    return m_ui->textEdit->document()->isModified();
}

static NotesChoice chooseNotes(QWidget *parent)
{
    switch (HostUi::current().saveQuestion(
        parent, NotesEditor::tr("BOM Notes"),
        NotesEditor::tr(
            "The notes were changed by another program meanwhile. Save yours in their place? With "
            "Discard the other ones are kept and yours are lost."),
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

void editNotes(BOMPartsDatabase *database, QWidget *parent)
{
    const QPointer<BOMPartsDatabase> notes(database);
    NotesEditor editor(parent);
    editor.setText(notes->notes());
    // What could not be saved is shown again, so that it is not lost.
    while (editor.exec() == QDialog::Accepted && notes) {
        NotesChoice choice = NotesChoice::KeepMine;
        const auto ask = [parent, &choice](const NotesConflict &) { return choice = chooseNotes(parent); };
        const NotesResult result = notes->setNotes(editor.text(), ask);
        if (result.problem.isEmpty()) {
            return;
        }
        if (choice != NotesChoice::Cancel) {
            HostUi::current().warning(parent, NotesEditor::tr("BOM Notes"), result.problem);
        }
    }
}
