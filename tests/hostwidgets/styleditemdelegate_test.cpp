// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/styleditemdelegate.h"

#include "host/widgets/blankingspinbox.h"
#include "host/widgets/keywordvalueeditor.h"
#include "support/printtext.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Columns: text, Yes or No, whole number.
class Delegate final : public StyledItemDelegate
{
public:
    using StyledItemDelegate::StyledItemDelegate;

protected:
    QWidget *makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const override
    {
        switch (index.column()) {
        case 1:
            return new KeywordValueEditor({u"Yes"_s, u"No"_s}, parent);
        case 2:
            return new BlankingSpinBox(parent);
        default:
            return StyledItemDelegate::makeEditor(parent, option, index);
        }
    }
};

class EditedTable : public testing::Test
{
protected:
    EditedTable()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&table);
        layout->addWidget(&other);
        table.setItemDelegate(&delegate);
        const QStringList texts{u"a"_s, u"No"_s, u"1"_s};
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 3; ++column) {
                table.setItem(row, column, new QTableWidgetItem(texts.at(column)));
            }
        }
        QObject::connect(&table, &QTableWidget::itemChanged, &table, [this](const QTableWidgetItem *item) {
            changes.append(u"%1,%2=%3"_s.arg(item->row()).arg(item->column()).arg(item->text()));
        });
        window.resize(500, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        table.setFocus();
    }

    /// Opens the editor of a cell and types into it.
    QWidget *type(int row, int column, const QString &text)
    {
        table.setCurrentCell(row, column);
        QTest::keyClick(&table, Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), text);
        return QApplication::focusWidget();
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    [[nodiscard]] QString place() const
    {
        return QString::number(table.currentRow()) + u',' + QString::number(table.currentColumn());
    }
    QStringList takeChanges() { return std::exchange(changes, {}); }

    /// Destroyed after what stands in it.
    QWidget window;
    QTableWidget table{4, 3};
    QLineEdit other;
    Delegate delegate;
    QStringList changes;
};

TEST_F(EditedTable, CommitsAndMovesWithReturnAndTab)
{
    struct Case
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char *place;
    };
    const Case cases[] = {{Qt::Key_Return, Qt::NoModifier, "2,1"},
                          {Qt::Key_Enter, Qt::KeypadModifier, "2,1"},
                          {Qt::Key_Return, Qt::ShiftModifier, "0,1"},
                          {Qt::Key_Tab, Qt::NoModifier, "1,2"},
                          {Qt::Key_Backtab, Qt::ShiftModifier, "1,0"}};
    for (const Case &c : cases) {
        table.item(1, 1)->setText(u"No"_s);
        (void)takeChanges();
        type(1, 1, u"y"_s);
        press(c.key, c.modifiers);
        EXPECT_EQ(place(), QLatin1String(c.place));
        EXPECT_FALSE(delegate.isEditing());
        EXPECT_TRUE(table.hasFocus());
        EXPECT_EQ(takeChanges(), QStringList{u"1,1=Yes"_s});
    }
    type(3, 2, u"7"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(place(), u"3,2"_s) << "there is none below";
}

TEST_F(EditedTable, MovesPastHiddenColumnsAndToTheRowThatWasBelowInASortedOne)
{
    table.hideColumn(1);
    type(1, 0, u"b"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(place(), u"1,2"_s);
    table.sortItems(2);
    table.setSortingEnabled(true);
    table.item(2, 0)->setText(u"below"_s);
    type(1, 2, u"9"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(table.currentItem()->row(), 1);
    EXPECT_EQ(table.item(1, 0)->text(), u"below"_s);
}

TEST_F(EditedTable, GivesUpWithEscapeAndCommitsWhenFocusIsLost)
{
    for (const int column : {0, 1, 2}) {
        const QString text = column == 0 ? u"x"_s : column == 1 ? u"Yes"_s : u"5"_s;
        type(1, column, text);
        press(Qt::Key_Escape);
        EXPECT_EQ(takeChanges(), QStringList());
        EXPECT_FALSE(delegate.isEditing());
        type(1, column, text);
        QTest::mouseClick(&other, Qt::LeftButton);
        EXPECT_EQ(takeChanges().size(), 1) << column;
        EXPECT_EQ(table.item(1, column)->text(), text);
    }
}

TEST_F(EditedTable, StaysOpenOnARefusedTextAndKeepsTheOldOne)
{
    const QSignalSpy refused(&delegate, &StyledItemDelegate::refused);
    type(1, 2, u"-"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(delegate.isEditing());
    EXPECT_FALSE(delegate.commitEditing());
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_FALSE(delegate.isEditing());
    EXPECT_EQ(refused, QList<QVariantList>(3, {table.model()->index(1, 2)}));
    type(1, 2, {});
    press(Qt::Key_Return);
    table.item(1, 1)->setText(u"maybe"_s);
    (void)takeChanges();
    type(1, 1, {});
    press(Qt::Key_Return);
    EXPECT_EQ(takeChanges(), QStringList()) << "what is not touched is not written";
}

TEST_F(EditedTable, KeepsWhatIsTypedWhenTheCellIsColoured)
{
    type(1, 2, u"42"_s);
    table.item(1, 2)->setForeground(Qt::blue);
    (void)takeChanges();
    EXPECT_TRUE(delegate.commitEditing());
    EXPECT_EQ(takeChanges(), QStringList{u"1,2=42"_s});
}

TEST_F(EditedTable, CommitsWhatIsTakenFromTheList)
{
    auto *editor = qobject_cast<KeywordValueEditor *>(type(1, 1, {}));
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->geometry(), table.visualItemRect(table.item(1, 1)));
    press(Qt::Key_Down);
    QTest::keyClick(editor->view(), Qt::Key_Up);
    QTest::keyClick(editor->view(), Qt::Key_Return);
    QTest::qWait(0);
    EXPECT_FALSE(delegate.isEditing());
    EXPECT_EQ(takeChanges(), QStringList{u"1,1=Yes"_s});
    EXPECT_EQ(place(), u"1,1"_s);
}

TEST_F(EditedTable, TellsWhetherAnEditorIsOpen)
{
    QSignalSpy told(&delegate, &StyledItemDelegate::editingChanged);
    type(0, 0, u"x"_s);
    EXPECT_TRUE(delegate.isEditing());
    press(Qt::Key_Return);
    EXPECT_EQ(told.size(), 0) << "not while the view is at it";
    type(1, 0, u"x"_s);
    QTest::qWait(0);
    table.setRowCount(0);
    QTest::qWait(0);
    ASSERT_EQ(told.size(), 2);
    EXPECT_TRUE(told.at(0).at(0).toBool());
    EXPECT_FALSE(told.at(1).at(0).toBool());
    EXPECT_FALSE(delegate.isEditing());
    delete delegate.createEditor(&table, {}, table.model()->index(0, 0));
    EXPECT_FALSE(delegate.isEditing()) << "also when somebody else deletes it";
}

TEST_F(EditedTable, EntersTextsByTheRulesOfTheCellsEditors)
{
    struct Case
    {
        int column;
        QString text;
        QString expected;
    };
    const Case cases[] = {{0, u"any"_s, u"any"_s}, {1, u"YES"_s, u"Yes"_s}, {1, u"maybe"_s, u"No"_s},
                          {2, u"1.0"_s, u"1"_s},   {2, u"1.5"_s, u"1"_s},   {2, u""_s, u""_s}};
    for (const Case &c : cases) {
        const QModelIndex cell = table.model()->index(2, c.column);
        table.item(2, c.column)->setText(c.column == 1 ? u"No"_s : u"1"_s);
        const bool isTaken = delegate.enterText(table.model(), cell, c.text);
        EXPECT_EQ(table.item(2, c.column)->text(), c.expected) << c.text;
        EXPECT_EQ(isTaken, c.text.compare(c.expected, Qt::CaseInsensitive) == 0 || c.text == u"1.0"_s)
            << c.text;
    }
    table.item(2, 0)->setFlags(Qt::ItemIsEnabled);
    EXPECT_FALSE(delegate.enterText(table.model(), table.model()->index(2, 0), u"x"_s));
    EXPECT_FALSE(delegate.isEditing());
}

} // namespace
