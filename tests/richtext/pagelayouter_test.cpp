// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/pagelayouter.h"

#include "richtext/paper/pdfoutput.h"

#include <QPageLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The document on pages of A4.
struct Pages
{
    explicit Pages(const QString &css, const QString &body)
    {
        const QString page = u"<html><head><style type=\"text/css\">"_s + css + u"</style></head><body>"_s +
                             body + u"</body></html>"_s;
        layOutPages(document, page, output.device(),
                    QSizeF(output.device().width(), output.device().height()));
    }
    [[nodiscard]] QTextTable *table(int index) const
    {
        return qobject_cast<QTextTable *>(document.rootFrame()->childFrames().value(index));
    }

    PdfOutput output{QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), {}};
    QTextDocument document;
};

TEST(PageLayouter, GivesTheBackgroundOfLongParagraphsToTheirCells)
{
    const Pages pages(u"p.a { padding: 1pt; background-color: red; }"_s,
                      u"<table><tbody><tr><th><p>Heading</p></th></tr><tr><td><p class='a'>"_s +
                          u"word "_s.repeated(4000) + u"</p></td></tr></tbody></table>"_s);
    ASSERT_GT(pages.document.pageCount(), 1);
    const auto *table = pages.table(0);
    ASSERT_TRUE(table);
    const QTextTableCell cell = table->cellAt(1, 0);
    EXPECT_EQ(cell.format().background().color(), QColor(Qt::red));
    ASSERT_NE(cell.firstCursorPosition().block(), cell.lastCursorPosition().block());
    for (auto block = cell.begin(); block != cell.end(); ++block) {
        EXPECT_EQ(block.currentBlock().blockFormat().background().style(), Qt::NoBrush);
    }
}

TEST(PageLayouter, LeavesColumnsTheWidthOfTheirWords)
{
    const auto section = [](const QString &cell, const QString &word) {
        return u"<tbody><tr><th>Long</th><th>Word</th><th>x</th><th>y</th></tr><tr><td>"_s + cell +
               u"</td><td>"_s + word + u"</td><td></td><td></td></tr></tbody>"_s;
    };
    const Pages pages({}, u"<table width='100%'>"_s + section(u"R1, "_s.repeated(300), u"1k"_s) +
                              section(u"G1"_s, u"Half_Automated_Word_Of_Some_Length"_s) + u"</table>"_s);
    const auto *table = pages.table(1);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->cellAt(1, 1).firstCursorPosition().block().layout()->lineCount(), 1);
}

} // namespace
