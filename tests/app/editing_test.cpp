// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What the program does with edits that are pending in the module's window.
#include "tests/app/workbenchfixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTableWidget>
#include <QTest>

namespace {

class EditingTest : public WorkbenchTest
{
protected:
    EditingTest() { EXPECT_TRUE(bench->open(write("parts.csv", "Reference,Value\nR1,10k\nC1,1u\n"))); }

    [[nodiscard]] QTableWidget *table() const
    {
        return bench->window().findChild<QTableWidget *>(QStringLiteral("partsView"));
    }
    /// The value of a part as the table shows it.
    [[nodiscard]] QTableWidgetItem *value(const char *reference) const
    {
        for (int row = 0; row < table()->rowCount(); ++row) {
            if (table()->item(row, 0)->text() == QLatin1String(reference)) {
                return table()->item(row, 2);
            }
        }
        return nullptr;
    }
    [[nodiscard]] std::string file() const
    {
        QFile read(path("parts.csv"));
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll().toStdString();
    }
};

TEST_F(EditingTest, AsksBeforeAnotherStateOfTheDesignReplacesIt)
{
    const QString other = write("other.csv", "Reference,Value\nR9,1\n");
    value("R1")->setText(QStringLiteral("11k"));
    EXPECT_FALSE(bench->open(other)) << "cancelled";
    action("&Include")->trigger();
    EXPECT_EQ(bench->session().dnpChoice(), DnpChoice::Exclude);
    ASSERT_EQ(ui.saveQuestions.size(), 2);
    EXPECT_TRUE(ui.saveQuestions[0].text.startsWith(
        QStringLiteral("Do you want to save the changes you made to the BOM template?")));
    EXPECT_TRUE(ui.saveQuestions[0].text.contains(QStringLiteral("One change of a property is pending")));

    ui.saveAnswer = HostUi::SaveAnswer::Discard;
    ASSERT_TRUE(bench->open(other));
    ASSERT_TRUE(bench->open(path("parts.csv")));
    EXPECT_EQ(value("R1")->text(), QStringLiteral("11k")) << "nothing pending is dropped";
    EXPECT_EQ(file(), "Reference,Value\nR1,10k\nC1,1u\n");
    ui.saveAnswer = HostUi::SaveAnswer::Save;
    ASSERT_TRUE(bench->open(other));
    EXPECT_EQ(file(), "Reference,Value\nR1,11k\nC1,1u\n");
}

TEST_F(EditingTest, NoCommandClosesTheDesignThatAQuestionStandsOn)
{
    value("R1")->setText(QStringLiteral("11k"));
    const QPointer<QTableWidget> shown = table();
    ui.saveAnswer = HostUi::SaveAnswer::Discard;
    ui.whileAsked = [&] {
        action("&Close")->trigger();
        EXPECT_TRUE(shown);
    };
    action("&Close")->trigger();
    EXPECT_FALSE(shown);
    EXPECT_EQ(ui.saveQuestions.size(), 1);
}

TEST_F(EditingTest, UndoTakesNothingBackThatItsQuestionWrote)
{
    setProperty("R1", "VALUE", "12k");
    value("C1")->setText(QStringLiteral("2u"));
    ui.answer = true;
    ui.saveAnswer = HostUi::SaveAnswer::Save;
    undo()->trigger();
    EXPECT_EQ(file(), "Reference,Value\nR1,12k\nC1,2u\n");
    EXPECT_TRUE(ui.questions.isEmpty());
    undo()->trigger();
    EXPECT_EQ(file(), "Reference,Value\nR1,12k\nC1,1u\n");
}

TEST_F(EditingTest, ChangedFilesWaitWhileACellIsOpen)
{
    bench->window().show();
    table()->window()->activateWindow();
    const quint64 before = stamp();
    table()->setCurrentItem(value("R1"));
    table()->editItem(value("R1"));
    auto *editor = table()->viewport()->findChild<QLineEdit *>();
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, QStringLiteral("typed"));
    writeValue("13k");
    QTest::qWait(300);
    EXPECT_EQ(stamp(), before);
    EXPECT_EQ(editor->text(), QStringLiteral("typed"));
    EXPECT_TRUE(waitFor([&] { QTest::keyClick(editor, Qt::Key_Return); }, [&] { return stamp() != before; }));
    EXPECT_EQ(value("R1")->text(), QStringLiteral("typed")) << "pending, and in conflict";
}

} // namespace
