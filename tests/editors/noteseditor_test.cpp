// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/noteseditor.h"

#include "editors/dialogfixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTextEdit>

namespace {

class Notes : public DialogFixture
{
protected:
    Notes() { open(editor); }

    NotesEditor editor;
};

TEST_F(Notes, AreTheTextThatWasSetUntilSomebodyTypes)
{
    const QString text = u"a\u00a0<b>b</b>\r\nc\u2028d"_s;
    editor.setText(text);
    EXPECT_EQ(editor.text(), text);
    EXPECT_EQ(child<QTextEdit>("textEdit")->toPlainText(), u"a <b>b</b>\nc\nd"_s) << "no markup";
    QTest::keyClicks(editor.focusWidget(), u"x"_s);
    QTest::keyClick(editor.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(editor.text(), u"x\na <b>b</b>\nc\nd"_s);
    QTest::keyClick(editor.focusWidget(), Qt::Key_Escape);
    editor.close();
    EXPECT_EQ(ui.questions.size(), 2);
    EXPECT_TRUE(editor.isVisible()) << "what was typed stays when the answer is No";
    QTest::keyClick(editor.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor.focusWidget(), Qt::Key_Delete);
    click(QDialogButtonBox::Save);
    EXPECT_EQ(editor.result(), QDialog::Accepted);
    EXPECT_EQ(editor.text(), QString());
}

TEST_F(Notes, TakePlainTextOfWhatIsPasted)
{
    auto *rich = new QMimeData;
    rich->setHtml(u"<p><b>Bold</b> and <a href='x'>link</a></p>"_s);
    rich->setText(u"Bold and link"_s);
    QGuiApplication::clipboard()->setMimeData(rich);
    QTest::keyClick(editor.focusWidget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), u"Bold and link"_s);
    EXPECT_FALSE(child<QTextEdit>("textEdit")->toHtml().contains(u"href"_s));
    EXPECT_EQ(editor.size(), QSize(555, 391));
}

TEST_F(Notes, StayAsTheyAreWhenTheClipboardIsEmpty)
{
    editor.setText(u"kept"_s);
    QGuiApplication::clipboard()->setMimeData(new QMimeData);
    QTest::keyClick(editor.focusWidget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor.text(), u"kept"_s);
}

} // namespace
