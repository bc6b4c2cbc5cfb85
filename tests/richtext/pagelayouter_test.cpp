// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/pagelayouter.h"

#include "host/richtext/pdfoutput.h"

#include <QPageLayout>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(PageLayouter, GivesTheBackgroundOfLongParagraphsToTheirCells)
{
    const QString text = u"word "_s.repeated(4000);
    const QString page = u"<html><head><style type=\"text/css\">p.a { padding: 1pt; background-color: red; }"
                         "</style></head><body><table><tbody><tr><th><p>Heading</p></th></tr>"
                         "<tr><td><p class='a'>"_s +
                         text + u"</p></td></tr></tbody></table></body></html>"_s;
    PdfOutput output(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), {});
    QTextDocument document;
    layOutPages(document, page, output.device(), QSizeF(output.device().width(), output.device().height()));
    ASSERT_GT(document.pageCount(), 1);
    const auto *table = qobject_cast<QTextTable *>(document.rootFrame()->childFrames().value(0));
    ASSERT_TRUE(table);
    const QTextTableCell cell = table->cellAt(1, 0);
    EXPECT_EQ(cell.format().background().color(), QColor(Qt::red));
    ASSERT_NE(cell.firstCursorPosition().block(), cell.lastCursorPosition().block());
    for (auto block = cell.begin(); block != cell.end(); ++block) {
        EXPECT_EQ(block.currentBlock().blockFormat().background().style(), Qt::NoBrush);
    }
}

} // namespace
