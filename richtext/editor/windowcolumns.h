// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <vector>

class QTextDocument;
class QTextTable;
class StyleSheet;

/// What a column of a table asks for, in pixels with its paddings.
struct ColumnRoom
{
    /// For the longest word, and for the longest text on one line.
    double word = 0;
    double line = 0;
    /// In percent of the paper.
    double share = 0;
    /// How much wider a word is shown than it is on paper, in the same size: letters of a small text have
    /// whole pixels.
    double stretch = 1;
};

/// The shares that columns get, in percent, of `width` where the paper has `paperWidth`. On less than the
/// paper, or in a small size, a column whose words or lines would be broken, but are not on paper, gets more
/// from those that have room to spare; words come first.
[[nodiscard]] QList<double> windowShares(const std::vector<ColumnRoom> &columns, double width,
                                         double paperWidth);

/// The columns of tables whose widths are shares. They are made for the paper; in a window that is narrower,
/// texts that fit there would be cut in two.
class WindowColumns final
{
public:
    /// Measures what stands in the tables of a document, which must outlive this.
    WindowColumns(QTextDocument &document, const StyleSheet &css);

    /// Gives the columns their shares in a document of that width, in its own size, that is shown `zoom`
    /// times as large. It is not laid out for it. Whether any share is another one.
    bool fit(double width, double zoom);
    /// The width of the document, in its own size, that breaks no number and no other short word that is
    /// whole on paper. 0 without tables.
    [[nodiscard]] double leastWidth(double zoom);

private:
    struct Table
    {
        QTextTable *table;
        /// What stands left, right and between the columns.
        double around = 0;
        std::vector<ColumnRoom> columns = {};
        /// The words, where nothing is zoomed.
        std::vector<double> words = {};
    };

    void measure(double zoom);
    [[nodiscard]] double bodyMargins() const;

    QTextDocument &m_document;
    double m_paperWidth;
    double m_zoom = 1;
    std::vector<Table> m_tables;
};
