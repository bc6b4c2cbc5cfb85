// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cleanedvalue.h"
#include "editors/clipboardblock.h"
#include "editors/dataviewfixture.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMimeData>

namespace {

class CellBlocks : public DataView
{
protected:
    /// Selects a block of cells, the first one current.
    void select(const char *first, const char *firstHeading, const char *last, const char *lastHeading)
    {
        table->setFocus();
        table->setCurrentItem(cell(first, firstHeading));
        const QItemSelection block(table->model()->index(row(first), column(firstHeading)),
                                   table->model()->index(row(last), column(lastHeading)));
        table->selectionModel()->select(block, QItemSelectionModel::ClearAndSelect);
    }
    void press(QKeySequence::StandardKey key) { QTest::keySequence(table, QKeySequence(key)); }
    void paste(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        press(QKeySequence::Paste);
    }
    [[nodiscard]] QString message()
    {
        return status.isEmpty() ? QString() : status.takeLast().first().toString();
    }

    QSignalSpy status{&view, &BOMDataView::statusMessage};
    QSignalSpy edited{&assignments, &PropertyAssignments::edited};
};

TEST_F(CellBlocks, GoToASpreadsheetAndComeBackAsOneAction)
{
    select("R1", "F VALUE", "R3", "F CODE");
    press(QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"1k\tb\n1k\tb\n2k\t\n"_s);
    paste(u"1k\t\"x\ny\"\r\n3k\tb\r\n2k\t5\"\r\n"_s);
    EXPECT_EQ(pending(), "R1 CODE=x y, R2 VALUE=3k, R3 CODE=5");
    EXPECT_EQ(edited.size(), 1);
    select("R1", "F CODE", "R3", "F CODE");
    paste(u"one"_s);
    EXPECT_EQ(pending(), "R1 CODE=one, R2 CODE=one, R2 VALUE=3k, R3 CODE=one");
    EXPECT_EQ(edited.size(), 2);
    press(QKeySequence::Cut);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"one\none\none\n"_s);
    EXPECT_EQ(pending(), "R1 CODE=, R2 CODE=, R2 VALUE=3k");
}

TEST_F(CellBlocks, AreRefusedAsAWhole)
{
    select("U1", "F CODE", "U1", "F CODE");
    paste(u"a\nb\n"_s);
    EXPECT_EQ(message(),
              u"Nothing was pasted: the block of 2 rows and 1 columns reaches beyond the table."_s);
    select("R1", "Category", "R1", "Category");
    paste(u"Resistors\t2k\nother\t2k"_s);
    EXPECT_EQ(message(), u"Nothing was changed. R2, Category: it cannot be edited."_s);
    select("R1", "F VALUE", "R2", "F CODE");
    press(QKeySequence::Delete);
    EXPECT_EQ(message(),
              u"Nothing was changed. R1, F VALUE: the value of a part on the schematic cannot be empty."_s);
    EXPECT_EQ(pending(), "");
    select("R1", "Category", "R1", "Category");
    paste(u"Resistors\t2k\nResistors\t2k"_s);
    EXPECT_EQ(pending(), "R1 VALUE=2k, R2 VALUE=2k") << "what cannot be edited came back as it was";
}

TEST_F(CellBlocks, LeaveOutWhatIsNotSeen)
{
    child<QLineEdit>("filterEdit")->setText(u"fcode:b"_s);
    child<QLineEdit>("filterEdit")->setText(u"1k"_s);
    table->hideColumn(column("F FIT"));
    table->horizontalHeader()->moveSection(column("F COST"), column("F CODE"));
    select("C1", "F CODE", "U1", "F COST");
    press(QKeySequence::Delete);
    EXPECT_EQ(pending(), "R1 CODE=, R2 CODE=");
    select("R1", "F COST", "R1", "F COST");
    paste(u"1\tc\n2\td"_s);
    EXPECT_EQ(pending(), "R1 CODE=c, R1 COST=1, R2 CODE=d, R2 COST=2");
}

TEST_F(CellBlocks, EmptyACellWhosePartsDifferOnlyAlone)
{
    cell("R1", "F CODE")->setText(u"x"_s);
    click("groupingCheckbox");
    select("R1-R2", "F CODE", "R1-R2", "F FIT");
    press(QKeySequence::Delete);
    EXPECT_EQ(pending(), "R1 CODE=x, R1 FIT=, R2 FIT=");
    select("R1-R2", "F CODE", "R1-R2", "F CODE");
    press(QKeySequence::Delete);
    EXPECT_EQ(pending(), "R1 CODE=, R1 FIT=, R2 CODE=, R2 FIT=");
}

TEST_F(CellBlocks, LeaveACellWhosePartsDifferAsItIs)
{
    cell("R1", "F CODE")->setText(u"x"_s);
    click("groupingCheckbox");
    select("R1-R2", "F CODE", "R1-R2", "F CODE");
    press(QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString()) << "\"(different)\" is nobody's text";
    select("C1", "F CODE", "R1-R2", "F CODE");
    paste(u"a\nb"_s);
    EXPECT_EQ(pending(), "R1 CODE=x");
    EXPECT_TRUE(message().contains(u"its parts differ"_s));
    select("R1-R2", "F CODE", "R1-R2", "F CODE");
    paste(u"on purpose"_s);
    EXPECT_EQ(pending(), "R1 CODE=on purpose, R2 CODE=on purpose");
}

TEST(ClipboardBlock, ReadsWhatItWritesAndWhatSpreadsheetsWrite)
{
    const ClipboardBlock block{{u"a\tb"_s, u"say \"no\""_s, u""_s}, {u"1\r\n2"_s, u"5\" x"_s, u" z "_s}};
    EXPECT_EQ(readClipboardText(clipboardText(block)), block);
    EXPECT_EQ(readClipboardText(u"a\tb\r\nc"_s), (ClipboardBlock{{u"a"_s, u"b"_s}, {u"c"_s, u""_s}}));
    EXPECT_EQ(readClipboardText(u"\"open\tb\n\"a\"x\t\"\"\r"_s),
              (ClipboardBlock{{u"\"open"_s, u"b"_s}, {u"\"a\"x"_s, u""_s}}));
    EXPECT_EQ(readClipboardText(u"\n"_s), (ClipboardBlock{{u""_s}}));
    EXPECT_TRUE(readClipboardText({}).isEmpty());
}

TEST(CleanedValue, FitsOnOneLineOfAScript)
{
    for (const auto &[text, cleaned] : {
             std::pair(u"{a}\"b\""_s, u"ab"_s),
             std::pair(u"x\\"_s, u"x"_s),
             std::pair(u"x\\\\\"}"_s, u"x\\"_s),
             std::pair(u"a\nb\rc\td"_s, u"a b c d"_s),
             std::pair(u"<5 V & more"_s, u"<5 V & more"_s),
             std::pair(u"<b>5 V"_s, u"<b>5 V</b>"_s),
             std::pair(u"100%1"_s, u"100%1"_s),
         }) {
        EXPECT_EQ(cleanedValue(text), cleaned) << qPrintable(text);
    }
}

class Drag : public DataView
{
protected:
    Drag() { data.setText(u"dragged"_s); }

    /// Whether the table takes the drag there.
    template<class Event>
    bool send(const QTableWidgetItem *over)
    {
        const QPoint place = middleOf(over);
        Event event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(table->viewport(), &event);
        return event.isAccepted();
    }

    QMimeData data;
    QSignalSpy edited{&assignments, &PropertyAssignments::edited};
};

TEST_F(Drag, FillsTheCellsThatItPassesOverAsOneAction)
{
    table->setCurrentItem(cell("R1", "F CODE"));
    EXPECT_FALSE(send<QDragEnterEvent>(cell("R1", "F VALUE")));
    EXPECT_TRUE(send<QDragEnterEvent>(cell("R1", "F CODE")));
    EXPECT_TRUE(view.isBusy());
    EXPECT_TRUE(send<QDragMoveEvent>(cell("R1", "F CODE")));
    EXPECT_EQ(cell("R1", "F CODE")->background().color(), QColor(212, 219, 232));
    EXPECT_TRUE(send<QDragMoveEvent>(cell("R3", "F CODE")));
    EXPECT_EQ(cell("R1", "F CODE")->background().color(), QColor(0, 0, 0, 0));
    EXPECT_FALSE(send<QDragMoveEvent>(cell("R10", "F VALUE"))) << "another column";
    EXPECT_TRUE(send<QDragMoveEvent>(cell("U1", "F CODE")));
    EXPECT_TRUE(edited.isEmpty());
    EXPECT_TRUE(send<QDropEvent>(cell("U1", "F CODE")));
    EXPECT_EQ(pending(), "R1 CODE=dragged, R2 CODE=dragged, R3 CODE=dragged, U1 CODE=dragged");
    EXPECT_EQ(edited.size(), 1);
    EXPECT_FALSE(view.isBusy());
    EXPECT_EQ(cell("U1", "F CODE")->background().color(), QColor(0, 0, 0, 0));
}

TEST_F(Drag, LeavesCellsWhosePartsDifferAsTheyAre)
{
    cell("R1", "F CODE")->setText(u"x"_s);
    click("groupingCheckbox");
    table->setCurrentItem(cell("C1", "F CODE"));
    send<QDragEnterEvent>(cell("C1", "F CODE"));
    send<QDragMoveEvent>(cell("C1", "F CODE"));
    send<QDragMoveEvent>(cell("R3", "F CODE"));
    send<QDropEvent>(cell("R1-R2", "F CODE"));
    EXPECT_EQ(pending(), "C1 CODE=dragged, R1 CODE=x, R3 CODE=dragged");
}

TEST_F(Drag, IsTakenBackWhenItIsCancelled)
{
    cell("R3", "F CODE")->setText(u"x"_s);
    edited.clear();
    table->setCurrentItem(cell("R1", "F CODE"));
    send<QDragEnterEvent>(cell("R1", "F CODE"));
    send<QDragMoveEvent>(cell("R1", "F CODE"));
    send<QDragMoveEvent>(cell("U1", "F CODE"));
    EXPECT_EQ(text("R3", "F CODE"), "dragged");
    Q_EMIT table->fillCancelled();
    QDragLeaveEvent leave;
    QApplication::sendEvent(table->viewport(), &leave);
    EXPECT_EQ(pending(), "R3 CODE=x");
    EXPECT_EQ(text("R3", "F CODE") + text("R1", "F CODE"), "xb");
    EXPECT_TRUE(edited.isEmpty()) << "nothing to undo";
}

TEST_F(Drag, LeavesNothingHighlightedWhenItLeaves)
{
    table->setCurrentItem(cell("R1", "F COST"));
    EXPECT_TRUE(send<QDragEnterEvent>(cell("R1", "F COST")));
    EXPECT_TRUE(send<QDragMoveEvent>(cell("R1", "F COST")));
    QDragLeaveEvent leave;
    QApplication::sendEvent(table->viewport(), &leave);
    EXPECT_EQ(cell("R1", "F COST")->background().color(), QColor(0, 0, 0, 0));
    EXPECT_FALSE(view.isBusy());
    EXPECT_EQ(pending(), "") << "no number";
    table->setCurrentItem(cell("R1", "Category"));
    EXPECT_TRUE(send<QDragEnterEvent>(cell("R1", "Category")));
    send<QDragMoveEvent>(cell("R2", "Category"));
    EXPECT_EQ(text("R2", "Category"), "Resistors");
}

} // namespace
