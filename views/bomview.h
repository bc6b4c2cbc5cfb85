// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"
#include "templates/bomfields.h"
#include "views/report/reportcolumn.h"

#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <limits>
#include <optional>
#include <vector>

class BOMPartsDatabase;

/// The base of all reports: turns the lines of the parts database into rows of texts, which a subclass lays
/// out. Without a database everything is empty.
/// A row is quantity, references and one value per field; ungrouped, the reference and one value per field.
class BOMView : public QWidget
{
    Q_OBJECT

public:
    /// As `width` of a row: the references are neither cut nor wrapped, however many there are.
    static constexpr int UnlimitedWidth = std::numeric_limits<int>::max();

    explicit BOMView(QWidget *parent = nullptr);
    ~BOMView() override;

    /// The database is not owned and must outlive the view or be replaced; null for none.
    virtual void setPartsDatabase(BOMPartsDatabase *database);

    /// The rows of a category by their first references; of rows with equal ones the last stays. `grouped`:
    /// one row per line, else one per part. The references of a line are listed within `lines` text lines of
    /// `width` characters.
    [[nodiscard]] virtual QList<QStringList> categoryRows(const QString &category, bool grouped, int width,
                                                          int lines) const;

public Q_SLOTS:
    /// The database has changed.
    virtual void handleBOMDataUpdate() = 0;

public:
    /// Takes over the fields of the template as they are now. Every report begins with it.
    virtual void updateFields();

    /// A cell by names, for the reader of single cells. Empty for a field that the report does not have. The
    /// text is that of cellText().
    [[nodiscard]] virtual QString fieldValue(const QString &reference, const QString &fieldName,
                                             bool formatted) const final;
    /// The text of formatCell(), or the value as it is when the report does not have the field.
    [[nodiscard]] virtual QString formatFieldValue(const QString &value,
                                                   const QString &fieldName) const final;

    /// Takes the VALUE column out of the report where the template says so.
    void removeValueField();
    [[nodiscard]] QStringList columnHeadings(bool withQuantity) const;

    /// One text per field: the total where the field has totals, else empty.
    [[nodiscard]] QStringList categorySubTotals(const QString &category) const;
    [[nodiscard]] QStringList grandTotals() const;

    /// A value longer than its field's width ends in "...".
    [[nodiscard]] QString truncateToFieldWidth(const QString &value, const QString &fieldName) const;

protected:
    /// The text of one cell. Rows are made of these: a report with other cells overrides it, not
    /// fieldValue().
    [[nodiscard]] virtual QString cellText(const Part &part, const ReportColumn &column,
                                           bool formatted) const;
    /// A value as the report shows it: numbers in the user's format, prefix and suffix around it.
    [[nodiscard]] virtual QString formatCell(const QString &value, const ReportColumn &column) const;

    /// The number that a cell shows; nothing for text, quoted numbers too.
    [[nodiscard]] std::optional<double> shownNumber(const QString &value, const ReportColumn &column) const;

    /// Adds the totals of a category, one per field; 0 for a field without totals.
    void addToSums(const QString &category, std::vector<double> &sums) const;
    /// Such totals as the report shows them.
    [[nodiscard]] QStringList totalsRow(const std::vector<double> &sums) const;

    [[nodiscard]] static QString truncated(const QString &value, const BOMField &field);

    [[nodiscard]] bool isValid() const { return m_isValid; }
    [[nodiscard]] BOMPartsDatabase *database() const { return m_database; }
    [[nodiscard]] const BOMFields &fields() const { return m_fields; }

    /// The fields in column order.
    [[nodiscard]] const std::vector<ReportColumn> &columns() const;
    /// Null for a field that the report does not have.
    [[nodiscard]] const ReportColumn *column(const QString &fieldName) const;

    /// As categoryRows(), one row after the other.
    void visitRows(const QString &category, bool grouped, int width, int lines,
                   const std::function<void(const QStringList &)> &visit) const;

private:
    [[nodiscard]] std::optional<double> readNumber(const QString &text) const;
    [[nodiscard]] QString numberText(double number, const BOMField &field) const;

    BOMPartsDatabase *m_database = nullptr;
    BOMFields m_fields;
    bool m_isValid = false;
    QLocale m_locale;
    mutable std::vector<ReportColumn> m_columns;
    /// The definitions that the columns were made with.
    mutable quint64 m_columnsGeneration = 0;
    mutable bool m_hasColumns = false;
};
