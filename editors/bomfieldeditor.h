// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/refusal.h"
#include "host/widgets/applndialog.h"
#include "templates/bomfields.h"

#include <functional>
#include <memory>
#include <optional>

class BOMPartsDatabase;

namespace Ui {
class BOMFieldEditor;
}

/// Edits one column of the report.
class BOMFieldEditor final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// Says why a field cannot be taken; nothing when it can.
    using Check = std::function<std::optional<Refusal>(const BOMField &)>;

    /// The database knows the names of properties; it is not owned and may be null.
    BOMFieldEditor(BOMPartsDatabase *database, const BOMField &field, QWidget *parent = nullptr);
    ~BOMFieldEditor() override;

    /// What OK asks first. A refused field is told, and the dialog stays open.
    void setCheck(const Check &check) { m_check = check; }

    /// The field as it is shown. What the dialog does not show is that of the field it was opened with.
    [[nodiscard]] BOMField field() const;

public Q_SLOTS:
    void accept() override;
    /// Lets the user define a property, and chooses it.
    void defineNewProperty();
    /// Sets the title to what describes the chosen property.
    void resetColumnTitle();

private:
    void fillProperties();
    void connectWidgets();
    void showField();
    void alignFields();
    [[nodiscard]] QString propertyName() const;

    std::unique_ptr<Ui::BOMFieldEditor> m_ui;
    BOMPartsDatabase *m_database;
    BOMField m_field;
    Check m_check;
};
