// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/refusal.h"
#include "host/widgets/applndialog.h"
#include "templates/bomcategory.h"

#include <QList>

#include <functional>
#include <memory>
#include <optional>

class BOMPartsDatabase;
class QComboBox;

namespace Ui {
class BOMCategoryEditor;
}

/// Edits one category of the report: its heading and, unless it is the miscellaneous one, its prefixes.
class BOMCategoryEditor final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// Says why a category cannot be taken; nothing when it can.
    using Check = std::function<std::optional<Refusal>(const BOMCategory &)>;

    /// The database knows the prefixes of the design; it is not owned and may be null.
    BOMCategoryEditor(const BOMPartsDatabase *database, const BOMCategory &category,
                      QWidget *parent = nullptr);
    ~BOMCategoryEditor() override;

    /// What OK asks first. A refused category is told, and the dialog stays open.
    void setCheck(const Check &check) { m_check = check; }

    [[nodiscard]] BOMCategory category() const;

public Q_SLOTS:
    void accept() override;

private:
    void setUpPrefixes();
    void showPrefixes();
    [[nodiscard]] QStringList shownPrefixes() const;
    [[nodiscard]] QStringList enteredPrefixes() const;

    std::unique_ptr<Ui::BOMCategoryEditor> m_ui;
    BOMCategory m_category;
    QList<QComboBox *> m_prefixes;
    /// The prefixes that the design has.
    QStringList m_offered;
    /// The texts of the boxes at the beginning.
    QStringList m_found;
    Check m_check;
};
