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
        edit->setPaperMargins(40, 60);
        ruler->setPaperWidth(paper * 0.75);
        ruler->setTextEdit(edit);
        window.resize(900, 300);
        window.show();
    }

    /// The place on the upper half of the ruler of a place in the lines.
    QPoint upper(double place) const
    {
        const int viewport = ruler->mapFromGlobal(edit->viewport()->mapToGlobal(QPoint(0, 0))).x();
        return {qRound(viewport - edit->horizontalScrollBar()->value() + place), 5};
    }
    QPoint lower(double place) const { return {upper(place).x(), ruler->height() - 5}; }
    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(ruler, Qt::LeftButton, {}, from);
        QTest::mouseMove(ruler, to);
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, to);
    }
    void click(double place) { QTest::mouseClick(ruler, Qt::LeftButton, {}, upper(place)); }
    QTextBlockFormat format() const { return edit->textCursor().blockFormat(); }
    void expectTabStop(double place)
    {
        ASSERT_EQ(format().tabPositions().size(), 1);
        EXPECT_NEAR(format().tabPositions().first().position, place, pixelsPerMm);
    }

    ScriptedUi ui;
    QWidget window;
    TextEditHRuler *ruler;
    TextEdit *edit;
};

TEST_F(Ruler, MovesTheParagraphsMargins)
{
    constexpr int width = paper - 40 - 60;
    drag(lower(0), lower(100));
    EXPECT_NEAR(format().leftMargin(), 100, pixelsPerMm);
    drag(upper(format().leftMargin()), upper(50));
    EXPECT_NEAR(format().leftMargin() + format().textIndent(), 50, pixelsPerMm);
    drag(lower(width), lower(width - 80));
    EXPECT_NEAR(format().rightMargin(), 80, pixelsPerMm);
    drag(lower(format().leftMargin()), lower(2000));
    EXPECT_LT(format().leftMargin(), width - format().rightMargin());
    edit->undo();
    EXPECT_NEAR(format().leftMargin(), 100, pixelsPerMm);
    edit->undo();
    EXPECT_EQ(format().rightMargin(), 0);
}

TEST_F(Ruler, SetsMovesAndTakesAwayTabStops)
{
    click(200);
    expectTabStop(200);
    drag(upper(200), upper(300));
    expectTabStop(300);
    drag(upper(300), upper(300) + QPoint(0, 80));
    EXPECT_TRUE(format().tabPositions().isEmpty());
    ruler->setHasTabStops(false);
    click(200);
    EXPECT_TRUE(format().tabPositions().isEmpty());
}

TEST_F(Ruler, TellsOfMovedPaperMarginsAndLeavesTheTextAlone)
{
    QSignalSpy spy(ruler, &TextEditHRuler::paperMarginsChanged);
    edit->document()->setModified(false);
    drag(upper(-9), upper(20));
    ASSERT_EQ(spy.size(), 1);
    EXPECT_NEAR(spy.first().at(0).toDouble(), (40 + 20) * 0.75, pixelsPerMm);
    EXPECT_NEAR(spy.first().at(1).toDouble(), 60 * 0.75, 0.01);
    drag(upper(paper - 100 + 9), upper(paper));
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
    click(200);
    expectTabStop(200);
}

TEST_F(Ruler, OutlivesItsEditor)
{
    delete edit;
    QTest::mouseClick(ruler, Qt::LeftButton, {}, QPoint(100, 5));
    EXPECT_FALSE(ruler->grab().isNull());
}

} // namespace
