// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applndialog.h"
#include "templates/bomtemplate.h"

#include <QHash>
#include <QList>

#include <memory>

class BOMPartsDatabase;
class QFormLayout;
class QSpinBox;

namespace Ui {
class AdvancedSettings;
}

/// Column widths, data output options and the case rule of the working template. Every change goes into it at
/// once, so that the report follows; Cancel brings back what was there.
class AdvancedSettings final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// `isModified` tells whether the template had unsaved changes before. The database is not owned.
    AdvancedSettings(BOMPartsDatabase *database, bool isModified, QWidget *parent = nullptr);
    ~AdvancedSettings() override;

public Q_SLOTS:
    void accept() override;
    void reject() override;
    /// Puts everything shown into the template.
    void storeSettings();
    /// Lets the other widths follow the spin box that changed last, and stores.
    void updateWidths();

Q_SIGNALS:
    /// The report looks different.
    void reportFormatChanged();
    /// CSV, ASCII or spreadsheet differ.
    void dataChanged();

private:
    void showTemplate();
    [[nodiscard]] QSpinBox *addRow(QFormLayout *form, const QString &title);
    void addColumn(const QString &title, int prettyWidth, int asciiWidth);
    void setUpTabOrder();
    void connectChanges();
    void balance(qsizetype changed);
    /// Shows a stored width, or the one of the spin box's range that is nearest.
    void showWidth(QSpinBox *spin, int width);
    [[nodiscard]] int widthOf(const QSpinBox *spin) const;
    [[nodiscard]] BOMTemplate shownTemplate() const;
    void notify(const BOMTemplate &before);

    std::unique_ptr<Ui::AdvancedSettings> m_ui;
    BOMPartsDatabase *m_database;
    BOMTemplate m_found;
    bool m_wasModified;
    /// Quantity, References, then the fields.
    QList<QSpinBox *> m_prettyWidths;
    QList<QSpinBox *> m_asciiWidths;
    struct StoredWidth
    {
        int width = 0;
        int shown = 0;
    };
    QHash<const QSpinBox *, StoredWidth> m_storedWidths;
};
