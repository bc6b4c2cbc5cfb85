// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/blankingdoublespinbox.h"
#include "host/widgets/blankingspinbox.h"
#include "host/widgets/keywordvalueeditor.h"

#include "support/printtext.h"
#include "support/scriptedui.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList dielectrics{u"C0G"_s, u"X7R"_s, u"X7S"_s, u"Y5V"_s};

/// What an editor shows and gives after these keys; "<" is Backspace.
template<class Editor>
QString typed(Editor &editor, const char *keys)
{
    for (const char *key = keys; *key; ++key) {
        if (*key == '<') {
            QTest::keyClick(&editor, Qt::Key_Backspace);
        } else {
            QTest::keyClick(&editor, *key);
        }
    }
    return (editor.isAcceptable() ? editor.text() : u"refused, "_s + editor.text());
}

TEST(KeywordEditor, CompletesWhatIsTypedAndTakesTheSpellingOfTheList)
{
    struct Case
    {
        const char *held;
        const char *keys;
        const char *expected;
    };
    const Case cases[] = {
        {"", "c", "C0G"},
        {"C0G", "x7s", "X7S"},
        {"", "y5v", "Y5V"},
        {"C0G", "<", ""},
        {"", "c<", "C0G"},
        {"", "x7<", "refused, "},
        {"C0G", "x7<", "refused, C0G"},
        {"", "q", "refused, "},
        {"", "cq", "refused, "},
        {"Z5U", "", "Z5U"},
        {"Z5U", "<y", "Y5V"},
        {"", "np0", "C0G"},
    };
    for (const Case &c : cases) {
        KeywordValueEditor editor(dielectrics);
        editor.addAlias(u"NP0"_s, u"C0G"_s);
        editor.setText(QString::fromLatin1(c.held));
        editor.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
        EXPECT_EQ(typed(editor, c.keys), QLatin1String(c.expected)) << c.held << ' ' << c.keys;
    }
}

TEST(KeywordEditor, EntersWholeKeywordsOnlyUnlessOthersAreAllowed)
{
    KeywordValueEditor editor(dielectrics);
    editor.addAlias(u"1"_s, u"X7R"_s);
    editor.setText(u"Z5U"_s);
    EXPECT_FALSE(editor.enterText(u"C"_s));
    EXPECT_EQ(editor.text(), u"Z5U"_s);
    EXPECT_TRUE(editor.enterText(u" x7s "_s));
    EXPECT_EQ(editor.text(), u"X7S"_s);
    EXPECT_TRUE(editor.enterText(u"1"_s));
    EXPECT_EQ(editor.text(), u"X7R"_s);
    EXPECT_TRUE(editor.enterText(u"Z5U"_s)) << "what is stored may come back";
    EXPECT_TRUE(editor.enterText(QString()));
    EXPECT_TRUE(editor.isBlank());
    editor.setOthersAllowed(true);
    EXPECT_EQ(typed(editor, "U2J"), u"U2J"_s);
}

TEST(KeywordEditor, OpensItsListWithDownAndReportsWhatIsTakenFromIt)
{
    KeywordValueEditor editor(dielectrics);
    editor.setText(u"x7r"_s);
    editor.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    int chosen = 0;
    QObject::connect(&editor, &KeywordValueEditor::chosen, &editor, [&chosen] { ++chosen; });
    QTest::keyClick(&editor, Qt::Key_Down);
    ASSERT_TRUE(editor.view()->isVisible());
    EXPECT_EQ(editor.view()->currentIndex().row(), 2);
    QTest::keyClick(editor.view(), Qt::Key_Escape);
    EXPECT_EQ(editor.text(), u"x7r"_s) << "a look at the list changes nothing";
    QTest::keyClick(&editor, Qt::Key_Down);
    QTest::keyClick(editor.view(), Qt::Key_Down);
    QTest::keyClick(editor.view(), Qt::Key_Return);
    EXPECT_FALSE(editor.view()->isVisible());
    EXPECT_EQ(editor.text(), u"X7S"_s);
    EXPECT_EQ(chosen, 1);
    QTest::keyClick(&editor, Qt::Key_Down);
    QTest::keyClick(editor.view(), Qt::Key_Home);
    QTest::keyClick(editor.view(), Qt::Key_Return);
    EXPECT_TRUE(editor.isBlank());
}

struct NumberCase
{
    const char *locale;
    const char *held;
    const char *keys;
    const char *expected;
};

template<class Box>
void expectTyped(std::initializer_list<NumberCase> cases)
{
    ScriptedUi ui;
    for (const NumberCase &c : cases) {
        ui.numberFormat = QLocale(QString::fromLatin1(c.locale));
        Box box;
        box.setText(QString::fromUtf8(c.held));
        EXPECT_EQ(typed(box, c.keys), QString::fromUtf8(c.expected))
            << c.locale << ' ' << c.held << ' ' << c.keys;
        EXPECT_EQ(box.isBlank(), box.text().isEmpty());
    }
}

TEST(WholeNumberBox, TakesBlankAndAllNumbersOf64Bits)
{
    expectTyped<BlankingSpinBox>({
        {"C", "", "", ""},
        {"C", "7", "<", ""},
        {"C", "", "0", "0"},
        {"C", "", "-9223372036854775808", "-9223372036854775808"},
        {"C", "", "92233720368547758079", "refused, "},
        {"C", "5", "-", "refused, 5"},
        {"C", "", "+012x", "refused, "},
        {"C", "", "1.05", "refused, "},
        {"C", "", "1,0", "refused, "},
        {"de_DE", "", "1,0", "1"},
        {"de_DE", "", "1.00", "1"},
        {"de_DE", "", "1.000", "refused, "},
        {"de_DE", "", "1,000", "1"},
        {"sv_SE", "", "-3", "-3"},
        {"C", "tbd", "", "tbd"},
        {"C", "tbd", "12", "12"},
    });
}

TEST(DecimalBox, KeepsWhatIsTypedWithTheUsersDecimalPoint)
{
    expectTyped<BlankingDoubleSpinBox>({
        {"C", "1.50", "<", ""},
        {"C", "", "0.00047", "0.00047"},
        {"C", "", "1.50", "1.50"},
        {"C", "", "1.", "1"},
        {"C", "", "-.5", "-0.5"},
        {"C", "", ".", "refused, "},
        {"C", "", "4,7", "refused, "},
        {"de_DE", "", "4,7", "4,7"},
        {"de_DE", "", "4.7", "4,7"},
        {"de_DE", "", "1.234,5", "refused, "},
        {"C", "", "4.7e-6", "4.7e-6"},
        {"C", "3", "4e", "refused, 3"},
        {"C", "3", "1e999", "refused, 3"},
        {"C", "", "nan", "refused, "},
        {"C", "", "12345678901234567890.123456789", "12345678901234567890.123456789"},
        {"de_DE", "1.234,5", "", "1.234,5"},
    });
}

template<class Box>
void expectStepped(const QString &from, int steps, const QString &expected)
{
    Box box;
    box.setText(from);
    for (int i = 0; i < std::abs(steps); ++i) {
        QTest::keyClick(&box, steps > 0 ? Qt::Key_Up : Qt::Key_Down);
    }
    EXPECT_EQ(box.text(), expected) << from << ' ' << steps;
}

TEST(NumberBoxes, StepExactlyAndFromBlankToZero)
{
    ScriptedUi ui;
    expectStepped<BlankingSpinBox>({}, 1, u"0"_s);
    expectStepped<BlankingSpinBox>({}, -1, u"0"_s);
    expectStepped<BlankingSpinBox>(u"9223372036854775806"_s, 3, u"9223372036854775807"_s);
    expectStepped<BlankingSpinBox>(u"tbd"_s, 1, u"tbd"_s);
    expectStepped<BlankingDoubleSpinBox>({}, 2, u"1"_s);
    expectStepped<BlankingDoubleSpinBox>(u"0.1"_s, -2, u"-0.1"_s);
    expectStepped<BlankingDoubleSpinBox>(u"0.00047"_s, 3, u"0.00050"_s);
    expectStepped<BlankingDoubleSpinBox>(u"9.9e-6"_s, 1, u"10.0e-6"_s);
    ui.numberFormat = QLocale(QLocale::German);
    expectStepped<BlankingDoubleSpinBox>(u"4,79"_s, 1, u"4,80"_s);
}

TEST(NumberBoxes, GiveNumbersAndTakeThem)
{
    ScriptedUi ui;
    ui.numberFormat = QLocale(QLocale::German);
    BlankingSpinBox whole;
    EXPECT_EQ(whole.value(), std::nullopt);
    whole.setValue(std::numeric_limits<qint64>::min());
    EXPECT_EQ(whole.value(), std::numeric_limits<qint64>::min());
    whole.setBlank();
    EXPECT_EQ(whole.value(), std::nullopt);
    BlankingDoubleSpinBox decimal;
    decimal.setValue(0.1);
    EXPECT_EQ(decimal.text(), u"0,1"_s);
    EXPECT_EQ(decimal.value(), 0.1);
    EXPECT_FALSE(decimal.enterText(u"1.234,5"_s));
    EXPECT_EQ(decimal.text(), u"0,1"_s);
}

TEST(ValueEditors, LeaveTheWheelAloneWithoutFocus)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *number = new BlankingSpinBox;
    auto *keyword = new KeywordValueEditor(dielectrics);
    auto *other = new QLineEdit;
    for (QWidget *widget : std::initializer_list<QWidget *>{other, number, keyword}) {
        layout->addWidget(widget);
    }
    number->setText(u"5"_s);
    keyword->setText(u"X7R"_s);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto turn = [](QWidget *widget) {
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    };
    other->setFocus();
    turn(number);
    turn(keyword);
    EXPECT_EQ(number->text(), u"5"_s);
    EXPECT_EQ(keyword->text(), u"X7R"_s);
    number->setFocus();
    turn(number);
    EXPECT_EQ(number->text(), u"6"_s);
}

} // namespace
