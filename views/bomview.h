// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomfields.h"
#include "views/report/report.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

class BOMPartsDatabase;

/// The base of the windows of all reports: gives the rows of a Report as texts and saves outputs. Without a
/// database everything is empty.
/// A row is quantity, references and one value per field; ungrouped, the reference and one value per field.
class BOMView : public QWidget
{
    Q_OBJECT

public:
    explicit BOMView(QWidget *parent = nullptr);
    ~BOMView() override;

    /// The database is not owned and must outlive the view or be replaced; null for none.
    virtual void setPartsDatabase(BOMPartsDatabase *database);

    /// The rows of a category by their first references; of rows with equal ones the last stays. `grouped`:
    /// one row per line, else one per part. The references of a line are listed within `lines` text lines of
    /// `width` characters. Values are those of fieldValue().
    [[nodiscard]] virtual QList<QStringList> categoryRows(const QString &category, bool grouped, int width,
                                                          int lines) const;

public Q_SLOTS:
    /// The database has changed.
    virtual void handleBOMDataUpdate() = 0;

public:
    /// Takes over the fields of the template as they are now. Every report begins with it.
    virtual void updateFields();

    /// The value of a part in a field, `formatted` as by formatFieldValue(). Empty for a field that the
    /// report does not have.
    [[nodiscard]] virtual QString fieldValue(const QString &reference, const QString &fieldName,
                                             bool formatted) const;
    /// A value as the report shows it: numbers in the user's format, prefix and suffix around it. The value
    /// as it is when the report does not have the field.
    [[nodiscard]] virtual QString formatFieldValue(const QString &value, const QString &fieldName) const;

    /// Takes the VALUE column out of the report where the template says so.
    void removeValueField();
    [[nodiscard]] QStringList columnHeadings(bool withQuantity) const;

    /// One text per field: the total where the field has totals, else empty.
    [[nodiscard]] QStringList categorySubTotals(const QString &category) const;
    [[nodiscard]] QStringList grandTotals() const;

    /// A value longer than its field's width ends in "...".
    [[nodiscard]] QString truncateToFieldWidth(const QString &value, const QString &fieldName) const;

protected:
    [[nodiscard]] bool isValid() const { return m_database != nullptr; }
    [[nodiscard]] BOMPartsDatabase *database() const { return m_database; }

    /// The report with the fields as updateFields() and removeValueField() left them. There must be a
    /// database.
    [[nodiscard]] const Report &report() const;
    /// The report as programs read it, with the template's fields as they are now.
    [[nodiscard]] const Report &dataReport();

    /// What the user is asked when an output is to be saved.
    struct SaveRequest
    {
        QString caption;
        /// With its dot.
        QString extension;
        QString filter;
    };
    /// Asks for a file, writes what `content` makes and hands the file to the desktop. The user is told when
    /// it cannot be written; the old file then stays. Returns the file, empty when none was written.
    QString saveOutput(const SaveRequest &request, const std::function<QByteArray()> &content);

private:
    BOMPartsDatabase *m_database = nullptr;
    BOMFields m_fields;
    /// Made when it is asked for, and anew when the property definitions have changed since.
    mutable std::optional<Report> m_report;
    mutable quint64 m_generation = 0;
};
