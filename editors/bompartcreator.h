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
class BOMPartCreator;
}

/// Adds BOM-only parts to a part of the design.
class BOMPartCreator final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// Neither is owned; without them nothing can be made.
    BOMPartCreator(PropertyAssignments *assignments, BOMPartsDatabase *database, QWidget *parent = nullptr);
    ~BOMPartCreator() override;

    /// Proposes the part that the new ones belong to.
    void setParentReference(const QString &reference);

public Q_SLOTS:
    /// Makes the parts and closes, without making those again that Create made last.
    void accept() override;
    /// Lists the references that the chosen category has.
    void updateRefs();
    /// Makes the parts and stays open. What is wrong is told.
    void createBOMParts();

private:
    /// What the user asks for.
    struct Request
    {
        QString parent;
        int quantity = 0;
        QString prefix;
        QString value;

        bool operator==(const Request &) const = default;
    };

    void setUpWidgets();
    void listReferences(ReferenceComboBox::Missing missing);
    [[nodiscard]] Request request() const;
    /// Markup, empty when nothing is wrong.
    [[nodiscard]] QString problem(const Request &asked) const;
    /// False when nothing was made, which was told.
    [[nodiscard]] bool create();
    void showCreated(const QString &parent, const QStringList &before);

    std::unique_ptr<Ui::BOMPartCreator> m_ui;
    PropertyAssignments *m_assignments;
    BOMPartsDatabase *m_database;
    Request m_created;
};
