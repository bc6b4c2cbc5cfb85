// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/pendingreview.h"

#include "editing/editingbench.h"
#include "editors/earlieredits.h"
#include "support/printtext.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace {

class Review : public EditingBench
{
protected:
    void open()
    {
        dialog = std::make_unique<PendingReview>(store.get(), &database);
        dialog->open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    [[nodiscard]] QTableView &view() const { return *dialog->findChild<QTableView *>(); }
    [[nodiscard]] std::string label(const char *name) const
    {
        return dialog->findChild<QLabel *>(QLatin1String(name))->text().toStdString();
    }
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return dialog->findChild<QPushButton *>(QLatin1String(name));
    }
    /// Without the check box: it is "[ ]" or "[x]".
    [[nodiscard]] std::string row(int row) const
    {
        QStringList texts;
        for (int column = 0; column < ReviewModel::ColumnCount; ++column) {
            const QModelIndex index = view().model()->index(row, column);
            const QVariant check = index.data(Qt::CheckStateRole);
            texts << (check.isNull() ? index.data().toString() : check.toBool() ? u"[x]"_s : u"[ ]"_s);
        }
        return texts.join(u'|').toStdString();
    }
    void clickCheckBox(int row) const
    {
        const QRect cell = view().visualRect(view().model()->index(row, ReviewModel::ConfirmColumn));
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, {cell.left() + 12, cell.center().y()});
        QCoreApplication::processEvents();
    }

    std::unique_ptr<PendingReview> dialog;
};

TEST_F(Review, SaysWhatEachEditWouldDo)
{
    store->assign(u"R10"_s, u"MPN"_s, u"x"_s);
    store->assign(u"R1"_s, u"MPN"_s, QString());
    store->assign(u"R2"_s, u"COST"_s, u"1.5"_s);
    store->assign(u"C1"_s, u"VALUE"_s, u"2u2"_s);
    store->assign(u"C1"_s, u"PACKAGE"_s, u"C:0603"_s);
    store->assign(u"SCR1"_s, u"MPN"_s, u"y"_s);
    open();
    ASSERT_EQ(view().model()->rowCount(), 6);
    EXPECT_EQ(row(0), "C1|PACKAGE||C:0603|amp.kicad_sch:79|||Fits");
    EXPECT_EQ(row(1), "C1|VALUE|1u|2u2|amp.kicad_sch:85|||Fits");
    EXPECT_EQ(row(2), "R1|MPN|A|(taken away)|amp.kicad_sch:37|||Fits");
    EXPECT_EQ(row(3), "R2|COST||1.5|amp.kicad_sch:47|||Fits");
    EXPECT_EQ(row(4), "R10|MPN||x|channel.kicad_sch:28|R20||Fits");
    EXPECT_EQ(row(5), "SCR1|MPN||y|BOMPART0, BOMPART1, BOMPART2 of U1, amp.kicad_sch:95|||Fits");
    EXPECT_EQ(label("summaryLabel"), "6 edits of 5 parts in 2 files (amp.kicad_sch, channel.kicad_sch)");
    EXPECT_TRUE(button("applyButton")->isDefault());
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(Review, LetsConflictsBeConfirmedAndEditsBeDropped)
{
    store->assign(u"R1"_s, u"MPN"_s, u"mine"_s);
    store->assign(u"R2"_s, u"MPN"_s, u"x"_s);
    store->assign(u"C1"_s, u"MPN"_s, u"y"_s);
    replaceInFile(u"amp.kicad_sch"_s, "\"MPN\" \"A\"", "\"MPN\" \"theirs\"");
    replaceInFile(u"amp.kicad_sch"_s, "uuid-R2", "uuid-R99");
    open();
    EXPECT_EQ(row(1), "R1|MPN|A|mine|||[ ]|Changed in the design meanwhile, now \"theirs\"");
    EXPECT_EQ(row(2), "R2|MPN||x||||The design has no such part any more");
    EXPECT_EQ(label("summaryLabel"), "3 edits of 3 parts in 1 file (amp.kicad_sch); 2 in conflict");
    clickCheckBox(1);
    EXPECT_EQ(label("summaryLabel"), "3 edits of 3 parts in 1 file (amp.kicad_sch); 1 in conflict");
    EXPECT_EQ(undo->stack().undoText(), u"Decide on MPN of R1"_s);
    view().selectRow(0);
    QTest::keyClick(&view(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&view(), Qt::Key_Delete);
    EXPECT_EQ(pending(), "R2 MPN=x gone");
    QCoreApplication::processEvents();
    EXPECT_FALSE(button("applyButton")->isEnabled());
    EXPECT_EQ(label("summaryLabel"), "1 edit of 1 part; 1 in conflict");
    QTest::mouseClick(button("dropButton"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(label("summaryLabel"), "Nothing is pending.");
    undo->stack().undo();
    undo->stack().undo();
    EXPECT_EQ(pending(), "C1 MPN=y | R1 MPN=mine changed | R2 MPN=x gone");
    EXPECT_TRUE(store->edit(u"R1"_s, u"MPN"_s)->isConfirmed);
}

TEST_F(Review, TellsWhatIsRefused)
{
    store->assign(u"R10"_s, u"MPN"_s, u"x"_s);
    store->assign(u"R20"_s, u"MPN"_s, u"y"_s);
    store->assign(u"R1"_s, u"MPN"_s, u"z"_s);
    open();
    EXPECT_EQ(label("summaryLabel"), "3 edits of 3 parts in 1 file (amp.kicad_sch); 2 refused");
    EXPECT_FALSE(button("applyButton")->isEnabled());
    EXPECT_EQ(label("problemsLabel"),
              "Nothing can be written while edits are refused: drop or correct those.");
    EXPECT_EQ(row(1), "R10|MPN||x||||Refused: drawn by one symbol of a sheet that is used several times, and "
                      "asked to differ: R10, R20");
}

TEST_F(EditingBench, TakesActionsBackOneByOne)
{
    QWidget window;
    QLineEdit filter(&window);
    QAction *back = undo->createUndoAction(&window);
    QAction *again = undo->createRedoAction(&window);
    window.addActions({back, again});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    filter.clearFocus();
    EXPECT_FALSE(back->isEnabled());
    store->assign(u"R1"_s, u"MPN"_s, u"x"_s);
    EXPECT_EQ(back->text(), u"&Undo Edit MPN of R1"_s);
    {
        const PropertyAssignments::Action action(store.get());
        store->assign(u"R1"_s, u"MPN"_s, u"y"_s);
        store->assign(u"R2"_s, u"MPN"_s, u"y"_s);
    }
    EXPECT_EQ(back->text(), u"&Undo Edit 2 values of MPN"_s);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pending(), "R1 MPN=x");
    QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(pending(), "R1 MPN=y | R2 MPN=y");
    store->clear();
    EXPECT_EQ(back->text(), u"&Undo Clear pending changes"_s);
    filter.setFocus();
    QTest::keyClicks(&filter, u"a"_s);
    back->trigger();
    EXPECT_EQ(filter.text(), QString());
    EXPECT_EQ(pending(), "") << "the text field has the keyboard";
    filter.clearFocus();
    back->trigger();
    EXPECT_EQ(pending(), "R1 MPN=y | R2 MPN=y");
    EXPECT_EQ(store->apply(), u"Applied successfully"_s);
    EXPECT_FALSE(back->isEnabled());
    EXPECT_FALSE(again->isEnabled());
    EXPECT_EQ(text(u"R2"_s, u"MPN"_s), "y");
}

TEST_F(EditingBench, OffersWhatAnEarlierRunLeft)
{
    const QTemporaryDir journals;
    const auto restart = [&] {
        undo.reset();
        store.reset();
        store = std::make_unique<PropertyAssignments>(&database);
        store->setJournalFolder(journals.path());
        database.reload();
    };
    restart();
    EXPECT_FALSE(offerEarlierEdits(store.get(), &database, nullptr));
    EXPECT_TRUE(ui.questions.isEmpty());
    store->assign(u"R1"_s, u"MPN"_s, u"x"_s);
    store->assign(u"R2"_s, u"MPN"_s, u"y"_s);
    restart();
    replaceInFile(u"amp.kicad_sch"_s, "\"MPN\" \"A\"", "\"MPN\" \"theirs\"");
    EXPECT_FALSE(offerEarlierEdits(store.get(), &database, nullptr));
    EXPECT_EQ(pending(), "");
    ui.answer = true;
    EXPECT_TRUE(offerEarlierEdits(store.get(), &database, nullptr));
    EXPECT_EQ(pending(), "R1 MPN=x changed | R2 MPN=y");
    ASSERT_EQ(ui.questions.size(), 2);
    EXPECT_EQ(
        ui.questions[0].text.toStdString(),
        "When the program ended, 2 edits of this design had not been written yet. 1 still fit; 1 would be "
        "in conflict:\nR1, MPN: Changed in the design meanwhile, now \"theirs\"\n\nMake them pending "
        "again? Nothing is written into the design before you apply them. With No they are kept, and "
        "offered again at the next start.");
    EXPECT_EQ(store->leftFromEarlier(), 0);
    store.reset();
}

} // namespace
