// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/templatestore.h"

#include <QPointer>

class APPLNPROCESS;
class BOMPartsDatabase;

/// The templates of the module: the folders that the host names, and the store, whose current template the
/// parts database holds. What is wrong with a template is shown in a box.
class ModuleTemplates final : private WorkingTemplate
{
public:
    /// The database must outlive the object; the process names the folders and may be null.
    ModuleTemplates(const APPLNPROCESS *process, BOMPartsDatabase &database);
    ~ModuleTemplates() override;

    /// Boxes stand in front of the window. For the first one the list is read and the template taken that was
    /// current last; later ones find what is being worked on.
    void show(QWidget *window);
    void setDialogParent(QWidget *window);
    /// Takes the current template anew where its file has other settings by now and it has no unsaved
    /// changes.
    void refresh();
    [[nodiscard]] TemplateStore &store() { return m_store; }

private:
    [[nodiscard]] BOMTemplate workingTemplate() const override;
    void takeTemplate(const BOMTemplate &settings, const std::function<void()> &announce) override;

    BOMPartsDatabase &m_database;
    TemplateStore m_store;
    QPointer<QWidget> m_window;
    bool m_isLoaded = false;
};
