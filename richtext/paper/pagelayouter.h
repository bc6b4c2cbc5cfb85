// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

#include <memory>
#include <vector>

class QPaintDevice;
class QTextDocument;
class QTextTable;
class StyleSheet;

/// Lays out an XHTML document, or parts of it with the columns that they have in the whole. The sections of a
/// table have common columns, and none begins at the foot of a page without a row.
class PageLayouter final
{
public:
    /// The device must outlive what is laid out.
    PageLayouter(const QString &xhtml, QPaintDevice &device, double width);
    PageLayouter(const PageLayouter &) = delete;
    PageLayouter &operator=(const PageLayouter &) = delete;
    ~PageLayouter();

    /// Fills `document` with an XHTML document that may be a part of the whole, broken into pages of that
    /// height in the device's pixels; on one page when it is 0. `tablesBefore` tables of the whole stand
    /// before it.
    void layOut(QTextDocument &document, const QString &xhtml, double pageHeight,
                size_t tablesBefore = 0) const;

private:
    QPaintDevice &m_device;
    double m_width;
    std::unique_ptr<StyleSheet> m_css;
    std::unique_ptr<QTextDocument> m_whole;
    /// Whether the whole was measured without most rows of its long table.
    bool m_lacksRows = false;
};

/// Fills `document` with a whole XHTML document broken into pages of that size.
void layOutPages(QTextDocument &document, const QString &xhtml, QPaintDevice &device, const QSizeF &page);

/// The tables of a document that stand in no other.
[[nodiscard]] std::vector<QTextTable *> tablesOf(const QTextDocument &document);

/// The first row of a table whose cells span one column each, or -1.
[[nodiscard]] int plainRow(const QTextTable &table);

/// An address for the PDF engine, which writes addresses as they stand, between brackets: a bracket in one
/// would end it.
[[nodiscard]] QString encodedAddress(const QString &address);
