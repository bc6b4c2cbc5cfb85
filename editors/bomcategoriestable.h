// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/bomoptionstable.h"
#include "editors/refusal.h"
#include "templates/bomcategory.h"

#include <QList>

#include <optional>

class BOMPartsDatabase;

/// The categories of the report, which the user edits.
class BOMCategoriesTable final : public BOMOptionsTable
{
    Q_OBJECT

public:
    explicit BOMCategoriesTable(QWidget *parent = nullptr);

    /// Gives the editor of a category the prefixes of the design. Not owned; null for none.
    void setPartsDatabase(BOMPartsDatabase *database) { m_database = database; }

    void setCategories(const QList<BOMCategory> &categories);
    /// In the order of the rows.
    [[nodiscard]] QList<BOMCategory> categories() const;

Q_SIGNALS:
    /// The user changed the categories.
    void bomCategoriesUpdated(const QList<BOMCategory> &categories);

public Q_SLOTS:
    void addCategory();
    void editCategory();
    void removeCategory();
    /// Tells what the rows hold now.
    void bomCategoriesChanged();

private:
    void showCategories(const QList<BOMCategory> &categories, int current);
    /// Runs the editor for the category at a row, where there is one; nothing when the user gives up.
    [[nodiscard]] std::optional<BOMCategory> run(const BOMCategory &category,
                                                 const QList<BOMCategory> &others);

    BOMPartsDatabase *m_database = nullptr;
};
