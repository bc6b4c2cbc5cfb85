// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/designnotes.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class BOMPartsDatabase;

namespace Ui {
class OptionsPanel;
}

/// The options of the current template that are changed beside the report, and the notes.
class OptionsPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPanel(QWidget *parent = nullptr);
    ~OptionsPanel() override;

    /// Not owned; null for none, which disables the panel.
    void setPartsDatabase(BOMPartsDatabase *database);

    /// Shows the options of the working template.
    void showTemplate();

Q_SIGNALS:
    /// The user wants to edit the values of a property.
    void propertyEditorRequested(const QString &propertyName);

public Q_SLOTS:
    void editBomNotes();

private:
    void connectForm();
    /// Takes what the controls say into the working template.
    void settingsChanged();
    /// Asks what is to become of notes that somebody else changed meanwhile.
    [[nodiscard]] NotesChoice chooseNotes();

    std::unique_ptr<Ui::OptionsPanel> m_ui;
    QPointer<BOMPartsDatabase> m_database;
};
