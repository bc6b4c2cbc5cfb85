// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/paper/celltext.h"
#include "richtext/paper/plaintable.h"
#include "richtext/paper/rowlook.h"
#include "richtext/xhtml/selfcontaineddocument.h"
#include "richtext/xhtml/xhtmlparts.h"

#include <QHash>
#include <QSizeF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

class PageLayouter;
class QPainter;
class QRectF;

/// A document with a table of many plain rows, broken into pages. The rows are laid out one by one, when
/// their page is made and again when it is painted, so that they take little time and memory; what stands
/// before and behind, and the headings, are QTextDocuments.
class LongTable final
{
public:
    /// Null when the document has no such table: then a QTextDocument has to lay it out as a whole.
    [[nodiscard]] static std::unique_ptr<LongTable> layOut(const QString &xhtml, QPaintDevice &device,
                                                           const QSizeF &page);
    LongTable(const LongTable &) = delete;
    LongTable &operator=(const LongTable &) = delete;
    ~LongTable();

    [[nodiscard]] int pageCount() const;

    /// Paints what stands on a page, counted from 0; pages stand one under the other.
    void draw(QPainter &painter, int page);

private:
    /// The headings of a section where it begins or goes on.
    struct Headings
    {
        int page;
        size_t section;
        double top;
    };
    /// Of each row its top and bottom, and where on a page rows go on under the repeated headings.
    struct Place
    {
        double top;
        double bottom;
        double areaOffset;
    };
    LongTable(const QString &xhtml, QPaintDevice &device, const QSizeF &page);

    [[nodiscard]] bool layOutAll();
    [[nodiscard]] bool measureSample();
    [[nodiscard]] QString sampleBody();
    void layOutStart();
    [[nodiscard]] bool layOutSection(size_t section);
    [[nodiscard]] bool placeFirstRow();
    [[nodiscard]] bool layOutRow(size_t row, size_t section);
    [[nodiscard]] bool placeHeadings(size_t section);
    void addHeadings(int page, size_t section);
    void layOutRest();
    [[nodiscard]] QString restBody() const;

    [[nodiscard]] const RowLook &look(size_t row) const { return m_looks[size_t(m_shapes[row])]; }
    [[nodiscard]] QString rowsText(size_t first, size_t end) const;
    [[nodiscard]] QString document(const QString &body) const;
    [[nodiscard]] QTextDocument &headings(size_t section);
    [[nodiscard]] double headingsHeight(size_t section);
    /// Rows stand whole pixels one under the other; rounding errors are far below 0.01.
    [[nodiscard]] double snapped(double y) const { return m_grid + std::ceil(y - m_grid - 0.01); }
    [[nodiscard]] int pageAt(double y) const { return int(y / m_page.height()); }
    /// The page of what ends there.
    [[nodiscard]] int pageAbove(double bottom) const { return pageAt(std::max(bottom - 1, 0.0)); }
    /// Where the page after the last row begins.
    [[nodiscard]] double nextPage() const { return (pageAbove(m_bottom) + 1) * m_page.height(); }
    [[nodiscard]] double pageEnd(double y) const { return (pageAt(y) + 1) * m_page.height(); }

    [[nodiscard]] std::optional<RowTexts> texts(size_t row) const;
    [[nodiscard]] bool startsOnPage(size_t row, double top, const RowTexts &cells) const;
    double placeLines(size_t row, double top, RowTexts &cells, double areaOffset) const;
    void drawRow(QPainter &painter, size_t row, const QRectF &part) const;

    QString m_xhtml;
    XhtmlParts m_parts;
    PlainTable m_table;
    QPaintDevice &m_device;
    QSizeF m_page;
    /// Whether the style sheet asks for rows in one piece, "tr { break-inside: avoid; }".
    bool m_keepsRows;
    std::unique_ptr<PageLayouter> m_layouter;

    /// What stands before the table, with its first headings and row; what follows it.
    SelfContainedDocument m_start;
    SelfContainedDocument m_rest;
    /// The page on which the rest begins.
    int m_restPage = 0;
    size_t m_tablesBefore = 0;

    std::vector<int> m_shapes;
    std::vector<RowLook> m_looks;
    SelfContainedDocument m_sample;
    double m_spacing = 0;
    /// How much lower a row stands under headings whose border it shares.
    double m_borderAbove = 0;
    /// From the text of a section's first heading to its first row, in the first section.
    double m_headingsHeight = 0;
    double m_firstHeadings = 0;
    /// Where on a page the text of a first heading stands.
    double m_headingTop = 0;
    /// Where rows go on under headings on a new page.
    double m_areaOffset = 0;
    /// The top of the sample's last row.
    double m_sampleBottom = 0;
    /// From the end of a section's last row to the text of the next heading, or of what follows the table.
    double m_sectionGap = 0;
    /// What stays free at the foot of a page under the text and padding of a row.
    double m_footMargin = 0;

    std::vector<Place> m_places;
    std::vector<Headings> m_headings;
    double m_grid = 0;
    /// Of the last row that has its place.
    double m_bottom = 0;

    size_t m_headingSection = size_t(-1);
    std::unique_ptr<SelfContainedDocument> m_headingDocument;
};
