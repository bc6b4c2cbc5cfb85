// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applndialog.h"

#include <QString>

#include <memory>

class BOMPartsDatabase;

namespace Ui {
class NotesEditor;
}

/// Edits the notes of the bill of materials, which are plain text.
class NotesEditor final : public APPLNDIALOG
{
    Q_OBJECT

public:
    explicit NotesEditor(QWidget *parent = nullptr);
    ~NotesEditor() override;

    void setText(const QString &text);
    /// The notes as they were set when nobody changed them, else what was typed with "\n" as line ends.
    [[nodiscard]] QString text() const;

protected:
    [[nodiscard]] bool hasTypedText() const override;

private:
    std::unique_ptr<Ui::NotesEditor> m_ui;
    QString m_found;
};

/// Shows the notes of the design in the editor, and writes them when it is accepted. What could not be
/// written is shown again; the user is asked about notes that another program changed meanwhile.
void editNotes(BOMPartsDatabase *database, QWidget *parent);
