// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <vector>

/// One paragraph of a plain table, as views on the body that was read.
struct PlainCell
{
    /// XHTML between the tags of the paragraph, without those of a link around all of it.
    QStringView content;
    /// The address of that link as it stands in the attribute; null without one.
    QStringView link;
    /// The index of its kind: cells of a kind have the same tags and attributes and so the same look.
    int kind = 0;
    int column = 0;
    int span = 1;
};

/// A row is the cells from `firstCell` to the next row's; `text` is its XHTML.
struct PlainRow
{
    size_t firstCell = 0;
    QStringView text;
};

/// Begins with rows of heading cells, which every page repeats that the section reaches.
struct PlainSection
{
    size_t firstRow = 0;
    size_t headings = 0;
};

/// A table of sections under headings, each cell one paragraph of text or a link, and what surrounds it.
struct PlainTable
{
    /// The body up to the table.
    QStringView before;
    QStringView startTag;
    std::vector<PlainSection> sections;
    std::vector<PlainRow> rows;
    std::vector<PlainCell> cells;
    /// Of each kind the start tags of cell and paragraph.
    QStringList kinds;
    int columns = 0;
    /// What follows in the body: sections of the table without headings, if any, its end tag and the rest.
    QStringView after;

    [[nodiscard]] size_t cellEnd(size_t row) const
    {
        return row + 1 < rows.size() ? rows[row + 1].firstCell : cells.size();
    }
    [[nodiscard]] size_t rowEnd(size_t section) const
    {
        return section + 1 < sections.size() ? sections[section + 1].firstRow : rows.size();
    }
};

/// Reads the first table of a body that has sections under headings. Nothing when there is none, when it
/// stands inside another element, or when anything in its sections is not plain. The body must outlive what
/// is given.
[[nodiscard]] std::optional<PlainTable> readPlainTable(QStringView body);

/// Rows of the same shape differ in texts and addresses only.
[[nodiscard]] QString shapeOf(const PlainTable &table, size_t row);

/// XHTML of a row of the same look with short texts: QTextDocument gets long ones as several paragraphs.
[[nodiscard]] QString sampleRow(const PlainTable &table, size_t row);

/// The text of XHTML content without tags: entities resolved, runs of blanks as one. Nothing when it has an
/// entity that is not known here, or a character that ends a paragraph.
[[nodiscard]] std::optional<QString> plainText(QStringView content);
