// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/propsfindandreplace.h"

#include "editors/dataviewfixture.h"
#include "editors/dialogfixture.h"
#include "editors/pendingundo.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableWidget>

namespace {

const QString endOfSearch = u"Reached end of search."_s;
const QString incompatible = u"Some values were not replaced as the replacement string was not compatible."_s;

/// Columns of references, categories, values, whole numbers and texts.
class FindAndReplace : public DialogFixture
{
protected:
    FindAndReplace()
    {
        fill({{u"R1"_s, u"Resistors"_s, u"10k"_s, u"10"_s, u"R3"_s},
              {u"R2"_s, u"Resistors"_s, u"22k"_s, u"1"_s, u"10"_s},
              {u"R3"_s, u"Resistors"_s, u"10K"_s, u"10"_s, u""_s},
              {u"R4"_s, u"Resistors"_s, u"10k5"_s, u"2"_s, u"10k"_s}});
        table.show();
        table.setCurrentCell(0, 2);
    }

    void fill(const QList<QStringList> &rows)
    {
        table.setColumnCount(5);
        table.setRowCount(int(rows.size()));
        for (int row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < 5; ++column) {
                const QString text = rows[row][column];
                auto *item = new QTableWidgetItem;
                item->setData(Qt::EditRole, column == 3 ? QVariant(text.toInt()) : QVariant(text));
                table.setItem(row, column, item);
            }
        }
    }
    void show()
    {
        dialog.showFind();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    /// Into the field that has the keyboard.
    void type(const QString &text) const
    {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Delete);
        QTest::keyClicks(dialog.focusWidget(), text);
    }
    void typeReplacement(const QString &text)
    {
        dialog.showReplace();
        type(text);
    }
    /// "row,column" of the next matches, and the message at the end.
    [[nodiscard]] std::string found()
    {
        QStringList cells;
        do {
            QTest::keyClick(&dialog, Qt::Key_Return);
            cells << (status().isEmpty() ? current() : status());
        } while (status().isEmpty() && cells.size() < 30);
        return cells.join(u' ').toStdString();
    }
    void press(const char *name) const
    {
        auto *button = dialog.findChild<QAbstractButton *>(QLatin1String(name));
        QTest::mouseClick(button, Qt::LeftButton, {}, {10, button->height() / 2});
    }
    [[nodiscard]] QString current() const
    {
        return QString::number(table.currentRow()) + u',' + QString::number(table.currentColumn());
    }
    [[nodiscard]] QString status() const { return dialog.findChild<QLabel *>(u"searchStatus"_s)->text(); }
    [[nodiscard]] QComboBox *box() const { return dialog.findChild<QComboBox *>(u"findComboBox"_s); }
    [[nodiscard]] std::string texts(int column) const
    {
        QStringList all;
        for (int row = 0; row < table.rowCount(); ++row) {
            all << table.item(row, column)->text();
        }
        return all.join(u'|').toStdString();
    }

    QTableWidget table;
    PropsFindAndReplace dialog{&table};
};

TEST_F(FindAndReplace, GoesOnceAroundTheCellsWithTheWholeText)
{
    show();
    EXPECT_EQ(box()->currentText(), u"10k"_s);
    EXPECT_EQ(found(), "2,2 0,2 3,4 Reached end of search.");
    EXPECT_EQ(found(), "3,4 0,2 2,2 Reached end of search.") << "from the last one on";
    press("caseSensitiveCheck");
    EXPECT_EQ(found(), "0,2 3,4 Reached end of search.");
    press("currentColOnlyCheck");
    EXPECT_EQ(found(), "3,4 Reached end of search.");
    table.setCurrentCell(1, 2);
    EXPECT_EQ(found(), "0,2 Reached end of search.") << "from where the user is";
    press("currentColOnlyCheck");
    box()->setFocus();
    type({});
    EXPECT_EQ(found(), "2,4 Reached end of search.");
    type(u"0k"_s);
    EXPECT_EQ(found(), "Reached end of search.");
    EXPECT_EQ(current(), u"2,4"_s);
    EXPECT_EQ(box()->count(), 2);
}

TEST_F(FindAndReplace, LooksAtWhatIsSeenInTheOrderInWhichItIsSeen)
{
    table.horizontalHeader()->moveSection(4, 0);
    table.hideRow(2);
    show();
    EXPECT_EQ(found(), "0,2 3,4 Reached end of search.");
    EXPECT_TRUE(dialog.findChild<QLabel *>(u"hiddenNote"_s)->isVisible());
    table.showRow(2);
    table.hideColumn(4);
    EXPECT_EQ(found(), "0,2 2,2 Reached end of search.");
    table.showColumn(4);
    EXPECT_EQ(found(), "0,2 2,2 3,4 Reached end of search.");
    EXPECT_FALSE(dialog.findChild<QLabel *>(u"hiddenNote"_s)->isVisible());
}

TEST_F(FindAndReplace, KeepsRowsInTheirPlacesWhileItIsShown)
{
    table.setSortingEnabled(true);
    show();
    EXPECT_FALSE(table.isSortingEnabled());
    EXPECT_FALSE(dialog.isModal());
    table.setCurrentCell(1, 2);
    dialog.showReplace();
    EXPECT_EQ(box()->currentText(), u"22k"_s);
    EXPECT_EQ(dialog.focusWidget()->objectName(), u"replaceEdit"_s);
    QTest::keyClick(&dialog, Qt::Key_F3);
    EXPECT_EQ(status(), u""_s);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(table.isSortingEnabled());
}

TEST_F(FindAndReplace, ReplacesTheCurrentCellAndGoesOn)
{
    int actions = 0;
    dialog.setActionRunner([&actions](const std::function<void()> &action) {
        ++actions;
        action();
    });
    table.setCurrentCell(0, 2);
    show();
    typeReplacement(u"47k"_s);
    QSignalSpy changes(&table, &QTableWidget::itemChanged);
    press("replaceBtn");
    EXPECT_EQ(texts(2), "47k|22k|10K|10k5");
    EXPECT_EQ(current(), u"2,2"_s);
    table.setCurrentCell(1, 2);
    press("replaceBtn");
    EXPECT_EQ(changes.size(), 1) << "22k is not what is looked for";
    EXPECT_EQ(current(), u"2,2"_s);
    EXPECT_EQ(actions, 2);
}

TEST_F(FindAndReplace, ReplacesAllAsOneAction)
{
    int actions = 0;
    dialog.setActionRunner([&actions](const std::function<void()> &action) {
        ++actions;
        action();
    });
    show();
    (void)found();
    typeReplacement(u"47k"_s);
    box()->setEditText(u"10k"_s);
    press("replaceAllBtn");
    EXPECT_EQ(texts(2), "47k|22k|47k|10k5");
    EXPECT_EQ(texts(4), "R3|10||47k");
    EXPECT_EQ(status(), endOfSearch);
    EXPECT_EQ(actions, 1);
}

TEST_F(FindAndReplace, TellsWhatCannotBeReplaced)
{
    table.setCurrentCell(2, 0);
    show();
    typeReplacement(u"R9"_s);
    press("replaceAllBtn");
    EXPECT_EQ(texts(0), "R1|R2|R3|R4");
    EXPECT_EQ(texts(4), "R9|10||10k");
    EXPECT_EQ(status(), incompatible);

    table.item(1, 4)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    table.setCurrentCell(0, 3);
    QSignalSpy changes(&table, &QTableWidget::itemChanged);
    typeReplacement(u"ten"_s);
    press("replaceAllBtn");
    EXPECT_EQ(texts(3), "10|1|10|2");
    EXPECT_EQ(texts(4), "R9|10||10k");
    EXPECT_EQ(status(), incompatible);
    EXPECT_TRUE(changes.isEmpty()) << "what is refused is no edit";

    table.setCurrentCell(0, 3);
    typeReplacement(u"012"_s);
    press("replaceBtn");
    EXPECT_EQ(texts(3), "12|1|10|2") << "the same number";
    EXPECT_EQ(status(), QString());
}

TEST_F(FindAndReplace, OutlivesATableThatChangesAndGoes)
{
    show();
    table.setRowCount(0);
    EXPECT_EQ(found(), "Reached end of search.");
    press("replaceAllBtn");
    fill({{u"R1"_s, u""_s, u"10k"_s, u"1"_s, u""_s}});
    typeReplacement(u"1"_s);
    QObject::connect(&table, &QTableWidget::itemChanged, &table, [this] { table.setColumnCount(0); });
    press("replaceAllBtn");
    EXPECT_EQ(table.columnCount(), 0);
    auto *other = new QTableWidget(3, 3);
    PropsFindAndReplace orphan(other);
    orphan.showFind();
    delete other;
    orphan.findNext();
    orphan.replace();
    orphan.replaceAll();
}

TEST_F(FindAndReplace, ReplacesInLargeTables)
{
    constexpr int rows = 20000;
    table.setRowCount(rows);
    table.setColumnCount(10);
    for (int cell = 0; cell < rows * 10; ++cell) {
        table.setItem(cell / 10, cell % 10, new QTableWidgetItem(cell % 10 == 7 ? u"old"_s : u"x"_s));
    }
    table.setCurrentCell(1, 7);
    show();
    typeReplacement(u"new"_s);
    QElapsedTimer timer;
    timer.start();
    press("replaceAllBtn");
    RecordProperty("milliseconds", int(timer.elapsed()));
    EXPECT_EQ(table.findItems(u"new"_s, Qt::MatchExactly).size(), rows);
}

TEST_F(DataView, HasTextsReplacedByTheRulesOfTheirColumns)
{
    PendingUndo undo(&assignments);
    type("R1", "F AMOUNT", u"5"_s);
    type("R2", "F AMOUNT", u"5"_s);
    table->setCurrentItem(cell("R1", "F AMOUNT"));
    view.showReplaceDialogue();
    auto *dialog = view.findChild<PropsFindAndReplace *>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    const auto replaceAll = [dialog](const char *text) {
        dialog->findChild<QLineEdit *>(u"replaceEdit"_s)->setText(QLatin1String(text));
        QTest::mouseClick(dialog->findChild<QAbstractButton *>(u"replaceAllBtn"_s), Qt::LeftButton);
        return dialog->findChild<QLabel *>(u"searchStatus"_s)->text();
    };
    EXPECT_EQ(replaceAll("1.0"), endOfSearch);
    EXPECT_EQ(pending(), "R1 AMOUNT=1, R2 AMOUNT=1");
    EXPECT_EQ(undo.stack().count(), 3) << "what one command replaces is one step";

    table->setCurrentItem(cell("R1", "F FIT"));
    view.showFindDialogue();
    EXPECT_EQ(replaceAll("maybe"), incompatible);
    EXPECT_EQ(replaceAll("No"), endOfSearch);
    EXPECT_EQ(pending(), "R1 AMOUNT=1, R1 FIT=No, R2 AMOUNT=1, R2 FIT=No");

    table->setCurrentItem(cell("R1", "F CODE"));
    view.showFindDialogue();
    EXPECT_EQ(replaceAll("a{b}"), incompatible) << "a design cannot hold it as it is";
    EXPECT_FALSE(assignments.edit(u"R1"_s, u"CODE"_s));
}

} // namespace
