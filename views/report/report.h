// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/numberreader.h"
#include "core/propertyquery.h"
#include "core/reportlines.h"
#include "templates/bomfields.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <optional>
#include <vector>

class BOMPartsDatabase;
class BOMTemplate;

/// What the design says of itself.
struct ReportDesign
{
    QString title;
    QString author;
    QString documentNumber;
    QString revision;
    QString created;
    QString modified;
    QString variant;
    /// The path of its file.
    QString file;

    bool operator==(const ReportDesign &) const = default;
};

[[nodiscard]] ReportDesign designOf(const BOMPartsDatabase &database);

/// The design in one line: title, document number, revision and variant, those that it has.
[[nodiscard]] QString subjectOf(const ReportDesign &design);

/// A field of the template with what is needed to fill its column.
struct ReportColumn
{
    BOMField field;
    PropertyQuery property;
    /// Whether the property holds numbers.
    bool isNumeric = false;
    /// The column that the bill has besides the template's: it says which parts are not fitted.
    bool isMark = false;

    /// Whether people read it as a column of numbers.
    [[nodiscard]] bool hasNumbers() const { return isNumeric || field.generateTotals; }
};

/// The fields for outputs that other programs read: without the value field where the template excludes it.
[[nodiscard]] BOMFields dataFields(BOMFields fields, const BOMTemplate &settings);

/// A value longer than its field's width ends in "...".
[[nodiscard]] QString truncatedToWidth(const QString &value, const BOMField &field);

/// Names the columns that a report leaves out because they are empty.
[[nodiscard]] QString emptyColumnsSentence(const QStringList &columns);

/// The bill of materials of a database under its current template: what every writer puts out in its own
/// form. Nothing is copied: lines are looked at where the database has them, and a text or a total is made
/// when it is asked for. Serves until the database, the template or the property definitions change.
class Report final
{
public:
    /// As `width` of references: they are neither cut nor wrapped, however many there are.
    static constexpr int UnlimitedWidth = std::numeric_limits<int>::max();
    /// The most decimal places that a number is shown with.
    static constexpr int MostDecimals = 15;

    /// Numbers are in the format of the host's user.
    Report(const BOMPartsDatabase &database, const BOMFields &fields);

    /// The same bill for people: where the template has a layout for reading, without the columns that are
    /// empty on all parts.
    [[nodiscard]] Report forReading() const;
    /// The same bill with some of the columns.
    [[nodiscard]] Report with(const std::function<bool(const ReportColumn &)> &isWanted) const;
    /// The columns that forReading() leaves out.
    [[nodiscard]] const QStringList &emptyColumns() const { return m_emptyColumns; }

    [[nodiscard]] ReportDesign design() const { return designOf(m_database); }
    [[nodiscard]] const BOMTemplate &settings() const;
    /// The user's notes on the bill.
    [[nodiscard]] const QString &notes() const;
    /// Parts that count, and beside them those that are listed as not fitted.
    struct Quantity
    {
        qsizetype counted = 0;
        qsizetype notFitted = 0;

        bool operator==(const Quantity &) const = default;
    };
    [[nodiscard]] static Quantity quantity(BomLine line);
    /// For people: "3", and with parts that are not fitted "0 + 2 DNP".
    [[nodiscard]] static QString text(const Quantity &quantity);
    /// What text() has behind the number.
    [[nodiscard]] static QString notFittedText(const Quantity &quantity);
    /// Of the whole design.
    [[nodiscard]] Quantity partCount() const;

    [[nodiscard]] const std::vector<ReportColumn> &columns() const { return m_columns; }
    /// Null when there is none of that name.
    [[nodiscard]] const ReportColumn *column(const QString &fieldName) const;
    [[nodiscard]] QStringList columnNames() const;
    /// Category, quantity unless it is not wanted, references, then the names of the columns.
    [[nodiscard]] QStringList headings(bool withQuantity) const;

    /// The categories that are listed, in their order.
    [[nodiscard]] QStringList categories() const;
    [[nodiscard]] Quantity partCount(const QString &category) const;
    /// The lines of a category by their first references, or, not grouped, its parts one by one.
    [[nodiscard]] ReportLines lines(const QString &category, bool grouped) const;

    /// The references of a line as the template lists them, within `lines` text lines of `width` characters.
    [[nodiscard]] QString references(BomLine line, int width = UnlimitedWidth, int lines = 1) const;
    /// The value of a part that its cell shows.
    [[nodiscard]] QString value(const Part &part, const ReportColumn &column) const;
    /// What the cell of a part shows: numbers in the user's format, prefix and suffix around it.
    [[nodiscard]] QString text(const Part &part, const ReportColumn &column) const;
    /// The same for a value of the column's property.
    [[nodiscard]] QString text(const QString &value, const ReportColumn &column) const;
    /// The number that the cell shows; nothing for a text, quoted numbers too.
    [[nodiscard]] std::optional<double> number(const Part &part, const ReportColumn &column) const;
    /// The link of the cell, empty where the part has none or the field shows none. In a layout for reading
    /// an address of the web is its own link.
    [[nodiscard]] QString link(const Part &part, const ReportColumn &column) const;

    /// One number per column, 0 for a column without totals.
    using Totals = std::vector<double>;
    [[nodiscard]] Totals subTotals(const QString &category) const;
    [[nodiscard]] Totals grandTotals() const;
    /// One text per column, empty for a column without totals.
    [[nodiscard]] QStringList texts(const Totals &totals) const;
    /// Whether any part of the category has a text there.
    [[nodiscard]] bool isFilled(const QString &category, const ReportColumn &column) const;

private:
    [[nodiscard]] std::optional<double> shownNumber(const QString &value, const ReportColumn &column) const;
    [[nodiscard]] QString numberText(double number, const BOMField &field) const;
    void addTotals(const QString &category, Totals &totals) const;

    const BOMPartsDatabase &m_database;
    QLocale m_locale;
    NumberReader m_numbers;
    std::vector<ReportColumn> m_columns;
    QStringList m_emptyColumns;
};
