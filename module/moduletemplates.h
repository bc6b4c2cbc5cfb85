// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/templatestore.h"

#include <QPointer>

class BOMPartsDatabase;

/// The templates of the module: the folders that the host names, and the store, whose current template the
/// parts database holds. What is wrong with a template is shown in a box.
class ModuleTemplates final : private WorkingTemplate
{
public:
    /// The database must outlive the object.
    explicit ModuleTemplates(BOMPartsDatabase &database);
    ~ModuleTemplates() override;

    /// Reads the list and takes the template that was current last. Boxes stand in front of the window.
    void load(QWidget *window);
    void setDialogParent(QWidget *window);

private:
    [[nodiscard]] BOMTemplate workingTemplate() const override;
    void takeTemplate(const BOMTemplate &settings) override;

    BOMPartsDatabase &m_database;
    TemplateStore m_store;
    QPointer<QWidget> m_window;
};
