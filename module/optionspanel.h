// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <memory>

class BOMPartsDatabase;
class BOMTemplate;
class QAction;

namespace Ui {
class OptionsPanel;
}

/// The list of templates, the options of the current one that are changed beside the report, and the notes.
/// What the user chooses is told by signals.
class OptionsPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPanel(QWidget *parent = nullptr);
    ~OptionsPanel() override;

    /// What the buttons beside the list of templates do.
    void setTemplateActions(QAction *save, QAction *create, QAction *remove);
    /// Not owned; null for none, which disables the panel.
    void setPartsDatabase(BOMPartsDatabase *database);

    /// Lists the names and shows the current one as chosen; no signal comes of it.
    void setTemplateNames(const QStringList &names, const QString &current);
    /// Marks the template as one with changes that are not saved.
    void setTemplateModified(bool isModified);
    /// Shows the options of the working template.
    void showTemplate();
    /// Shows its fields only.
    void showFields();
    /// Gives a template the options that are shown.
    void takeOptions(BOMTemplate *settings) const;

    /// The name that the list of templates shows.
    [[nodiscard]] QString templateName() const;

Q_SIGNALS:
    void templateChosen(const QString &name);
    /// The user changed one of the options.
    void settingsChanged();
    void headerEditorRequested();
    void styleEditorRequested();
    void notesEditorRequested();
    /// The user wants to edit the values of a property.
    void propertyEditorRequested(const QString &propertyName);

protected:
    /// Turning the wheel above the closed list of templates chooses none.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectForm();

    std::unique_ptr<Ui::OptionsPanel> m_ui;
    QPointer<BOMPartsDatabase> m_database;
};
