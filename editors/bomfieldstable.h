// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/bomoptionstable.h"
#include "editors/refusal.h"
#include "templates/bomfields.h"

#include <optional>

class BOMPartsDatabase;

/// The columns of the report, which the user edits.
class BOMFieldsTable final : public BOMOptionsTable
{
    Q_OBJECT

public:
    explicit BOMFieldsTable(QWidget *parent = nullptr);

    /// Gives the editor of a field the names of properties. Not owned; null for none.
    void setPartsDatabase(BOMPartsDatabase *database) { m_database = database; }

    /// Shows the columns of a template. Without one for VALUE it gets one in front.
    void setFields(const BOMFields &fields);
    [[nodiscard]] const BOMFields &fields() const { return m_fields; }

    void updateBtns(int row) override;

Q_SIGNALS:
    /// The user changed the columns.
    void bomFieldsUpdated(const BOMFields &fields);
    /// The user wants to edit the values of a property.
    void showGlobalPropertyEditor(const QString &propertyName);

public Q_SLOTS:
    void addField();
    void editField();
    void removeField();
    /// Takes the order of the columns from the rows.
    void bomFieldOrderChanged();

private:
    void showFields(const QString &currentName);
    void change(const BOMFields &fields, const QString &currentName);
    [[nodiscard]] QString currentName() const;
    [[nodiscard]] bool isProtected(const QString &name) const;
    /// Runs the editor; nothing when the user gives up. `replaced` is the name that the field had.
    [[nodiscard]] std::optional<BOMField> run(const BOMField &field, const QString &replaced);
    [[nodiscard]] std::optional<Refusal> refusal(const BOMField &edited, const QString &replaced) const;

    BOMPartsDatabase *m_database = nullptr;
    BOMFields m_fields;
};
