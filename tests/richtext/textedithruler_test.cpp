// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedithruler.h"

#include "richtext/editor/textedit.h"
#include "support/scriptedui.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextFrame>
#include <QVBoxLayout>

namespace {

constexpr double pixelsPerMm = 96 / 25.4;
constexpr int paper = 800;

class Ruler : public testing::Test
{
protected:
    Ruler()
        : ruler(new TextEditHRuler)
        , edit(new TextEdit)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(ruler);
        layout->addWidget(edit);
        edit->setLineWrapMode(QTextEdit::FixedPixelWidth);
        edit->setLineWrapColumnOrWidth(paper);
        edit->setPlainText(QStringLiteral("text"));
        QTextFrameFormat format = edit->document()->rootFrame()->frameFormat();
        format.setLeftMargin(40);
        format.setRightMargin(60);
        edit->document()->rootFrame()->setFrameFormat(format);
        ruler->setPaperWidth(paper * 0.75);
        ruler->setTextEdit(edit);
        window.resize(900, 300);
        window.show();
    }

    /// The place on the ruler of a place in the lines.
    QPoint at(double place, bool isUpper) const
    {
        const int viewport = ruler->mapFromGlobal(edit->viewport()->mapToGlobal(QPoint(0, 0))).x();
        const double x = viewport - edit->horizontalScrollBar()->value() + 40 + place;
        return {qRound(x), isUpper ? 5 : ruler->height() - 5};
    }
    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(ruler, Qt::LeftButton, {}, from);
        QTest::mouseMove(ruler, to);
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, to);
    }
    QTextBlockFormat format() const { return edit->textCursor().blockFormat(); }

    ScriptedUi ui;
    QWidget window;
    TextEditHRuler *ruler;
    TextEdit *edit;
};

} // namespace

TEST_F(Ruler, MovesTheParagraphsMargins)
{
    constexpr int width = paper - 40 - 60;
    drag(at(0, false), at(100, false));
    EXPECT_NEAR(format().leftMargin(), 100, pixelsPerMm);
    drag(at(format().leftMargin(), true), at(50, true));
    EXPECT_NEAR(format().leftMargin() + format().textIndent(), 50, pixelsPerMm);
    drag(at(width, false), at(width - 80, false));
    EXPECT_NEAR(format().rightMargin(), 80, pixelsPerMm);
    drag(at(format().leftMargin(), false), at(2000, false));
    EXPECT_LT(format().leftMargin(), width - format().rightMargin());
    edit->undo();
    EXPECT_NEAR(format().leftMargin(), 100, pixelsPerMm);
    edit->undo();
    EXPECT_EQ(format().rightMargin(), 0);
}

TEST_F(Ruler, SetsMovesAndTakesAwayTabStops)
{
    QTest::mouseClick(ruler, Qt::LeftButton, {}, at(200, true));
    ASSERT_EQ(format().tabPositions().size(), 1);
    EXPECT_NEAR(format().tabPositions().first().position, 200, pixelsPerMm);
    drag(at(200, true), at(300, true));
    ASSERT_EQ(format().tabPositions().size(), 1);
    EXPECT_NEAR(format().tabPositions().first().position, 300, pixelsPerMm);
    drag(at(300, true), at(300, true) + QPoint(0, 80));
    EXPECT_TRUE(format().tabPositions().isEmpty());
    ruler->setHasTabStops(false);
    QTest::mouseClick(ruler, Qt::LeftButton, {}, at(200, true));
    EXPECT_TRUE(format().tabPositions().isEmpty());
}

TEST_F(Ruler, TellsOfMovedPaperMarginsAndLeavesTheTextAlone)
{
    QSignalSpy spy(ruler, &TextEditHRuler::paperMarginsChanged);
    edit->document()->setModified(false);
    drag(at(-9, true), at(20, true));
    ASSERT_EQ(spy.size(), 1);
    EXPECT_NEAR(spy.first().at(0).toDouble(), (40 + 20) * 0.75, pixelsPerMm);
    EXPECT_NEAR(spy.first().at(1).toDouble(), 60 * 0.75, 0.01);
    drag(at(paper - 100 + 9, true), at(paper, true));
    EXPECT_EQ(spy.size(), 2);
    EXPECT_LT(spy.last().at(1).toDouble(), 60 * 0.75);
    EXPECT_FALSE(edit->document()->isModified());
}

TEST_F(Ruler, FollowsScrolling)
{
    window.resize(400, 300);
    QTest::qWait(1);
    edit->horizontalScrollBar()->setValue(120);
    ASSERT_EQ(edit->horizontalScrollBar()->value(), 120);
    QTest::mouseClick(ruler, Qt::LeftButton, {}, at(200, true));
    ASSERT_EQ(format().tabPositions().size(), 1);
    EXPECT_NEAR(format().tabPositions().first().position, 200, pixelsPerMm);
}

TEST_F(Ruler, OutlivesItsEditorAndTakesNoFocus)
{
    EXPECT_EQ(ruler->focusPolicy(), Qt::NoFocus);
    delete edit;
    QTest::mouseClick(ruler, Qt::LeftButton, {}, QPoint(100, 5));
    EXPECT_FALSE(ruler->grab().isNull());
}
