// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/referencecombobox.h"
#include "host/widgets/applndialog.h"

#include <QString>

#include <memory>

class BOMPartsDatabase;
class PropertyAssignments;

namespace Ui {
class BOMPartRemover;
}

/// Takes a BOM-only part away from the part that it belongs to.
class BOMPartRemover final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// Neither is owned; without them nothing can be removed.
    BOMPartRemover(PropertyAssignments *assignments, BOMPartsDatabase *database, QWidget *parent = nullptr);
    ~BOMPartRemover() override;

    /// Proposes the BOM-only part to remove, or the part that has some.
    void setReference(const QString &reference);

public Q_SLOTS:
    void accept() override;
    /// Lists the BOM-only parts of the chosen parent.
    void updateBOMRefs();
    /// Removes the chosen part and closes. What is wrong is told, and the dialog stays open.
    void removeBOMPart();

private:
    void showParents();
    void listBOMRefs(ReferenceComboBox::Missing missing);
    void showValue();

    std::unique_ptr<Ui::BOMPartRemover> m_ui;
    PropertyAssignments *m_assignments;
    BOMPartsDatabase *m_database;
};
