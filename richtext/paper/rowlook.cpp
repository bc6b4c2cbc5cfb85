// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/rowlook.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace {

bool isPlain(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    return format.topMargin() == 0 && format.bottomMargin() == 0 && format.leftMargin() == 0 &&
           format.rightMargin() == 0 && format.textIndent() == 0 && format.indent() == 0 &&
           format.lineHeightType() == QTextBlockFormat::SingleHeight && !format.nonBreakableLines() &&
           !format.hasProperty(QTextFormat::BackgroundBrush) && !block.textList();
}

bool hasBorder(const QTextTableCellFormat &format)
{
    return format.topBorder() > 0 || format.bottomBorder() > 0 || format.leftBorder() > 0 ||
           format.rightBorder() > 0;
}

double placeOf(const QTextTableCellFormat &format)
{
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignMiddle:
        return 0.5;
    case QTextCharFormat::AlignBottom:
        return 1;
    default:
        return 0;
    }
}

class SampleReader final
{
public:
    SampleReader(const QTextDocument &document, const QTextTable &table, QPaintDevice &device)
        : m_document(document)
        , m_table(table)
        , m_device(device)
        , m_scale(deviceScale(device))
    {
    }

    [[nodiscard]] std::optional<RowLook> readRow(int row) const
    {
        RowLook look;
        std::vector<QRectF> texts;
        for (int column = 0; column < m_table.columns();) {
            const QTextTableCell cell = m_table.cellAt(row, column);
            const QTextBlock block = cell.firstCursorPosition().block();
            const QTextTableCellFormat format = cell.format().toTableCellFormat();
            if (cell.rowSpan() != 1 || block != cell.lastCursorPosition().block() || !isPlain(block) ||
                hasBorder(format)) {
                return std::nullopt;
            }
            texts.push_back(m_document.documentLayout()->blockBoundingRect(block));
            look.cells.push_back(readCell(format, block, texts.back()));
            column += cell.columnSpan();
        }
        return placed(std::move(look), texts);
    }

private:
    [[nodiscard]] double padding(const QTextTableCellFormat &format, QTextFormat::Property side) const
    {
        return format.hasProperty(side) ? m_scale * format.doubleProperty(side)
                                        : std::round(m_scale * m_table.format().cellPadding());
    }

    [[nodiscard]] CellLook readCell(const QTextTableCellFormat &format, const QTextBlock &block,
                                    const QRectF &text) const
    {
        const QTextCharFormat characters =
            block.begin().atEnd() ? block.charFormat() : block.begin().fragment().charFormat();
        CellLook look;
        look.paddingLeft = padding(format, QTextFormat::TableCellLeftPadding);
        look.paddingRight = padding(format, QTextFormat::TableCellRightPadding);
        look.paddingAbove = padding(format, QTextFormat::TableCellTopPadding);
        look.paddingBelow = padding(format, QTextFormat::TableCellBottomPadding);
        look.left = text.left() - look.paddingLeft;
        look.width = text.width() + look.paddingLeft + look.paddingRight;
        look.place = placeOf(format);
        look.font = QFont(characters.font(), &m_device);
        look.color = characters.hasProperty(QTextFormat::ForegroundBrush) ? characters.foreground().color()
                                                                          : QColor(Qt::black);
        look.background = format.background();
        look.alignment = block.blockFormat().alignment();
        return look;
    }

    /// The row with its top and height, if all of its texts stand where these say.
    [[nodiscard]] static std::optional<RowLook> placed(RowLook look, const std::vector<QRectF> &texts)
    {
        constexpr double tolerance = 1;
        for (size_t i = 0; i < texts.size(); ++i) {
            look.height = std::max(look.height, look.cells[i].paddingAbove + texts[i].height() +
                                                    look.cells[i].paddingBelow);
        }
        look.height = std::ceil(look.height);
        for (size_t i = 0; i < texts.size(); ++i) {
            const CellLook &cell = look.cells[i];
            const double free = look.height - cell.paddingAbove - texts[i].height() - cell.paddingBelow;
            const double top = texts[i].top() - cell.paddingAbove - cell.place * free;
            look.top = i == 0 ? top : look.top;
            if (std::abs(top - look.top) > tolerance) {
                return std::nullopt;
            }
        }
        return look.cells.empty() ? std::nullopt : std::optional(std::move(look));
    }

    const QTextDocument &m_document;
    const QTextTable &m_table;
    QPaintDevice &m_device;
    double m_scale;
};

} // namespace

double deviceScale(const QPaintDevice &device)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? device.logicalDpiY() / screen->logicalDotsPerInchY() : 1;
}

std::optional<std::vector<RowLook>> readRowLooks(const QTextDocument &document, const QTextTable &table,
                                                 int first, QPaintDevice &device)
{
    constexpr double tolerance = 1;
    if (table.format().border() > 0) {
        return std::nullopt;
    }
    const SampleReader reader(document, table, device);
    const double spacing = rowSpacing(table, device);
    std::vector<RowLook> looks;
    for (int row = first; row < table.rows(); ++row) {
        std::optional<RowLook> look = reader.readRow(row);
        if (!look) {
            return std::nullopt;
        }
        const bool isFirst = looks.empty();
        if (!isFirst && std::abs(looks.back().top + looks.back().height + spacing - look->top) > tolerance) {
            return std::nullopt;
        }
        looks.push_back(std::move(*look));
    }
    return looks;
}

double rowSpacing(const QTextTable &table, const QPaintDevice &device)
{
    return table.format().borderCollapse() ? 0
                                           : std::round(table.format().cellSpacing() * deviceScale(device));
}

double cellPaddingAbove(const QTextTable &table, const QPaintDevice &device)
{
    const QTextTableCellFormat format = table.cellAt(0, 0).format().toTableCellFormat();
    const bool isOwn = format.hasProperty(QTextFormat::TableCellTopPadding);
    const double scale = deviceScale(device);
    return isOwn ? format.topPadding() * scale : std::round(table.format().cellPadding() * scale);
}
