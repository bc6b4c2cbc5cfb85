// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/editor/windowcolumns.h"
#include "richtext/paper/plaintable.h"
#include "richtext/xhtml/qtstylesheet.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QList>
#include <QString>
#include <QTextLength>

#include <memory>
#include <optional>
#include <vector>

class QTextTable;

/// Fills a document that has a long plain table by and by: QTextDocument needs seconds for ten thousand rows,
/// and lays a table out as a whole for each row that it gets. So the rows come in tables that stand one under
/// the other without a gap, in columns as wide as those of one table would be.
class GrowingTable final
{
public:
    /// Fills `document`, which must outlive this, with what stands before the table and its first rows. Null,
    /// with any content, when the document has no such table: then it has to be made in one go.
    [[nodiscard]] static std::unique_ptr<GrowingTable> begin(SelfContainedDocument &document,
                                                             const QString &xhtml, const StyleSheet &css,
                                                             const QString &highlighted);
    GrowingTable(const GrowingTable &) = delete;
    GrowingTable &operator=(const GrowingTable &) = delete;
    ~GrowingTable();

    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    /// Puts the next rows behind those that are there, and behind the last one what follows the table.
    void append();
    void appendAll();
    /// Gives the columns the widths that they have in a document of that width. The document is not laid out
    /// for it: it is to get that width afterwards.
    void alignColumns(double width);
    /// See WindowColumns.
    [[nodiscard]] double leastWidth();

    /// Whether a table goes on with the rows of the table before it.
    [[nodiscard]] static bool isContinuation(const QTextTable &table);

private:
    GrowingTable(SelfContainedDocument &document, XhtmlParts parts, PlainTable table, const StyleSheet &css,
                 const QString &highlighted);

    [[nodiscard]] bool start(const StyleSheet &css);
    [[nodiscard]] bool makeSample(const QString &body, const StyleSheet &css);
    void measurePaddings();
    [[nodiscard]] std::vector<double> textWidths() const;
    [[nodiscard]] QString nextRows();
    [[nodiscard]] QString qtHtml(const QString &body) const;
    void insertPiece();
    void join(QTextTable &table, bool isContinuation) const;

    SelfContainedDocument &m_document;
    /// Those of the document. The table has views on them; both are let go when all rows are there.
    XhtmlParts m_parts;
    PlainTable m_table;
    QtStyleSheet m_style;
    QString m_highlighted;
    size_t m_nextRow = 0;
    /// Of the next piece, in characters.
    qsizetype m_pieceSize = 25'000;
    bool m_isComplete = false;

    /// The whole with few of its rows: those that make its columns as wide as they are.
    SelfContainedDocument m_sample;
    std::optional<WindowColumns> m_sampleColumns;
    QTextTable *m_sampleTable = nullptr;
    int m_plainRow = -1;
    /// What each column has left and right of its text.
    std::vector<double> m_paddings;
    QList<QTextLength> m_columns;
    /// Of the document and its sample, the tables that stand before.
    size_t m_tablesBefore = 0;
};
