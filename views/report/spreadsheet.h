// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <utility>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;
class QUrl;

/// How a cell looks.
enum class CellLook
{
    Text,
    Title,
    Label,
    Heading,
    NumberHeading,
    Section,
    Cell,
    Number,
    Quantity,
    RightQuantity,
    Link,
    SubTotal,
    Total
};

/// How a sheet is printed.
struct SheetPaper
{
    /// Its name in files, 9 for A4.
    int paper = 9;
    bool isLandscape = true;
    /// Stands at the foot of each page beside its number; empty for a page without foot.
    QString foot;

    bool operator==(const SheetPaper &) const = default;
};

/// An .xlsx file that is written row by row, each sheet after the one before. Texts stay texts, whatever they
/// look like. What the format cannot hold becomes the problem of the whole file.
class Spreadsheet final
{
    Q_DECLARE_TR_FUNCTIONS(Spreadsheet)

public:
    /// The most characters of a cell, in UTF-16 units.
    static constexpr qsizetype MostCharacters = 32767;
    /// Of a sheet.
    static constexpr qsizetype MostRows = 1'048'576;

    struct Properties
    {
        QString title;
        QString author;
        QDateTime created;
    };

    explicit Spreadsheet(const Properties &properties);
    Spreadsheet(const Spreadsheet &) = delete;
    Spreadsheet &operator=(const Spreadsheet &) = delete;
    ~Spreadsheet();

    /// Begins a sheet; what follows goes into its first row.
    void beginSheet(const QString &name);
    /// Of the sheet that was begun last.
    void setPaper(const SheetPaper &paper);
    void nextRow();
    /// Counts from 0.
    [[nodiscard]] int row() const { return m_row; }

    /// The number format that keeps what people type into a cell a text.
    static QString textFormat() { return QStringLiteral("@"); }

    /// That one, unless old programs do not show a text of that length in it.
    static QString formatOf(const QString &text)
    {
        constexpr qsizetype longestTyped = 255;
        return text.size() <= longestTyped ? textFormat() : QString();
    }

    /// These write a cell of the current row. An empty text gives an empty cell in that look, an empty number
    /// format the general one.
    void text(int column, const QString &text, CellLook look, const QString &format = {});
    void number(int column, double number, CellLook look, const QString &format = {});
    /// `result` is what the formula gives.
    void formula(int column, const QString &formula, double result, CellLook look,
                 const QString &format = {});
    /// Makes a link of the cell, which is to be written after it. False when it cannot be one; notices() then
    /// says so, of a malformed one by its owner.
    [[nodiscard]] bool link(int column, const QUrl &target, const QString &owner);

    /// Keeps this row of headings, with all above it, in sight and repeats it on every printed page; gives it
    /// filters for the rows down to `lastRow`. Texts that look like numbers are no faults in these.
    void freezeRow(int row, int lastColumn, int lastRow);

    /// What a cell holds of a text: line feeds only, and none of the characters that XML lacks.
    [[nodiscard]] static QString cellText(const QString &text);
    /// Cells as formulas name them, rows and columns from 0.
    [[nodiscard]] static QString range(int firstRow, int firstColumn, int lastRow, int lastColumn);
    /// Whether a number format is not longer than the format allows.
    [[nodiscard]] static bool holdsFormat(const QString &format);

    /// Ends the file. Empty when there is a problem.
    [[nodiscard]] QByteArray bytes();
    /// Why there is no file; empty when nothing is wrong.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// What the file lacks, one sentence each.
    [[nodiscard]] QStringList notices() const;

private:
    using FormatKey = std::pair<CellLook, QString>;

    [[nodiscard]] bool isReady(int column);
    [[nodiscard]] lxw_format *format(CellLook look, const QString &numbers);
    void widen(int column, qsizetype characters, CellLook look);
    /// Makes the row high enough for a text that is wrapped in its cell.
    void heighten(const QString &text);
    void setWidths();
    void check(int error);

    QTemporaryDir m_folder;
    QByteArray m_folderName;
    QByteArray m_path;
    lxw_workbook *m_workbook = nullptr;
    lxw_worksheet *m_sheet = nullptr;
    std::map<FormatKey, lxw_format *> m_formats;
    QList<qsizetype> m_widths;
    int m_row = 0;
    /// Of the current row.
    qsizetype m_textLines = 1;
    int m_links = 0;
    int m_missingLinks = 0;
    int m_longLinks = 0;
    int m_malformedLinks = 0;
    /// Of the first malformed links.
    QStringList m_malformedOwners;
    QString m_problem;
};
