// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedittoolbars.h"

#include "richtext/editor/textedit.h"
#include "richtext/xhtml/xhtmlwriter.h"
#include "support/printtext.h"
#include "support/scriptedui.h"
#include "support/testfiles.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextList>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

class ToolBars : public testing::Test
{
protected:
    ToolBars()
        : bars(new TextEditToolBars)
        , edit(new TextEdit)
        , size(bars->findChild<QComboBox *>(u"fontSize"_s))
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(bars);
        layout->addWidget(edit);
        window.show();
        bars->setTextEdit(edit);
        edit->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        type(u"one two"_s);
    }

    void type(const QString &text) { QTest::keyClicks(edit, text); }
    void typeNextLine(const QString &text)
    {
        QTest::keyClick(edit, Qt::Key_Return);
        type(text);
    }
    void click(const char *tool)
    {
        QTest::mouseClick(bars->findChild<QWidget *>(QLatin1String(tool) + u"Button"_s), Qt::LeftButton);
    }
    bool isOn(const char *tool) const { return bars->findChild<QAction *>(QLatin1String(tool))->isChecked(); }
    void typeSize(const QString &text)
    {
        size->lineEdit()->selectAll();
        QTest::keyClicks(size->lineEdit(), text);
        QTest::keyClick(size->lineEdit(), Qt::Key_Return);
    }
    void choose(const char *tool, const QString &entry)
    {
        for (QAction *action : bars->findChild<QToolButton *>(QLatin1String(tool))->menu()->actions()) {
            if (action->text() == entry) {
                action->trigger();
            }
        }
    }
    void select(int from, int to)
    {
        QTextCursor cursor(edit->document());
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        edit->setTextCursor(cursor);
    }
    QTextCharFormat formatBehind(int position) const
    {
        QTextCursor cursor(edit->document());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }
    QTextList *list() const { return edit->textCursor().currentList(); }
    /// Presses Ctrl+K and does something in the dialog that opens.
    void inLinkDialog(const std::function<void(QDialog &)> &act)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QTimer::singleShot(0, &window, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            dialog->close();
        });
        QTest::keyClick(edit, Qt::Key_K, Qt::ControlModifier);
    }
    static QLineEdit *field(const QDialog &dialog, const char *name)
    {
        return dialog.findChild<QLineEdit *>(QLatin1String(name));
    }
    static void fill(QDialog &dialog, const char *name, const QString &text)
    {
        field(dialog, name)->selectAll();
        QTest::keyClicks(field(dialog, name), text);
        QTest::keyClick(&dialog, Qt::Key_Return);
    }

    ScriptedUi ui;
    QWidget window;
    TextEditToolBars *bars;
    TextEdit *edit;
    QComboBox *size;
};

TEST_F(ToolBars, FormatTheSelectionAndFollowTheCursor)
{
    select(0, 3);
    QTest::keyClick(edit, Qt::Key_B, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_I, Qt::ControlModifier);
    click("underline");
    const QTextCharFormat format = formatBehind(0);
    EXPECT_TRUE(format.fontWeight() == QFont::Bold && format.fontItalic() && format.fontUnderline());
    EXPECT_TRUE(isOn("bold") && isOn("italic") && isOn("underline"));
    QTest::keyClick(edit, Qt::Key_End);
    EXPECT_FALSE(isOn("bold") || isOn("italic") || isOn("underline"));
}

TEST_F(ToolBars, SetSizeAndColours)
{
    select(0, 3);
    typeSize(u"17.5"_s);
    EXPECT_EQ(formatBehind(0).fontPointSize(), 17.5);
    typeSize(u"-3x"_s);
    EXPECT_EQ(formatBehind(0).fontPointSize(), 17.5);
    EXPECT_EQ(size->currentText(), u"17.5"_s);
    QTest::keyClick(size, Qt::Key_Down);
    EXPECT_EQ(formatBehind(0).fontPointSize(), size->currentText().toDouble());

    choose("textcolour", u"Red"_s);
    choose("fillcolour", u"Light Blue"_s);
    EXPECT_EQ(formatBehind(0).foreground().color(), QColor(0xcc0000));
    EXPECT_EQ(formatBehind(0).background().color(), QColor(0xdde8ff));
    choose("fillcolour", u"No Background"_s);
    EXPECT_EQ(formatBehind(0).background().style(), Qt::NoBrush);
    EXPECT_EQ(formatBehind(5).foreground().style(), Qt::NoBrush);
}

TEST_F(ToolBars, SetTheSizeOfHeadingsInOneStep)
{
    edit->document()->setHtml(u"<h1>head</h1><p>text</p>"_s);
    edit->selectAll();
    typeSize(u"8"_s);
    EXPECT_EQ(formatBehind(1).font().pointSizeF(), 8);
    EXPECT_EQ(formatBehind(6).font().pointSizeF(), 8);
    click("undo");
    EXPECT_GT(QFontInfo(formatBehind(1).font()).pointSizeF(), 8);
    click("redo");
    EXPECT_EQ(formatBehind(1).font().pointSizeF(), 8);
}

TEST_F(ToolBars, AlignAndIndentParagraphs)
{
    click("aligncentre");
    EXPECT_EQ(edit->alignment(), Qt::AlignHCenter);
    EXPECT_TRUE(isOn("aligncentre") && !isOn("alignleft"));
    for (const char *tool : {"indent", "indent", "outdent"}) {
        click(tool);
    }
    EXPECT_EQ(edit->textCursor().blockFormat().leftMargin(), 40);
    click("outdent");
    click("outdent");
    EXPECT_EQ(edit->textCursor().blockFormat().leftMargin(), 0);
}

TEST_F(ToolBars, MakeListsAndNestThem)
{
    click("numbers");
    typeNextLine(u"deeper"_s);
    click("indent");
    EXPECT_TRUE(isOn("numbers"));
    ASSERT_NE(list(), nullptr);
    EXPECT_EQ(list()->format().indent(), 2);
    typeNextLine(u"back"_s);
    click("outdent");
    EXPECT_EQ(list()->itemText(edit->textCursor().block()), u"2."_s);
    click("bullets");
    EXPECT_TRUE(isOn("bullets") && !isOn("numbers"));
    click("bullets");
    EXPECT_EQ(list(), nullptr);
    EXPECT_EQ(edit->textCursor().blockFormat().indent(), 0);
}

TEST_F(ToolBars, InsertChangeAndRemoveLinks)
{
    const QString address = u"https://x.org/?a=1&b"_s;
    select(4, 7);
    inLinkDialog([&](QDialog &dialog) {
        EXPECT_EQ(field(dialog, "linkText")->text(), u"two"_s);
        fill(dialog, "linkAddress", u"ftp://example.com"_s);
        EXPECT_FALSE(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
        fill(dialog, "linkAddress", u"javascript:alert(1)"_s);
        EXPECT_TRUE(dialog.isVisible());
        fill(dialog, "linkAddress", address);
    });
    EXPECT_EQ(formatBehind(5).anchorHref(), address);
    type(u" more"_s);
    EXPECT_FALSE(formatBehind(9).isAnchor());
    select(5, 5);
    inLinkDialog([&](QDialog &dialog) {
        EXPECT_EQ(field(dialog, "linkAddress")->text(), address);
        fill(dialog, "linkText", u"2"_s);
    });
    EXPECT_EQ(edit->toPlainText(), u"one 2 more"_s);
    select(5, 5);
    inLinkDialog([](QDialog &dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(u"removeLink"_s), Qt::LeftButton);
    });
    EXPECT_EQ(edit->toPlainText(), u"one 2 more"_s);
    EXPECT_FALSE(formatBehind(4).isAnchor() || formatBehind(4).fontUnderline());
    edit->undo();
    EXPECT_TRUE(formatBehind(4).isAnchor());
}

TEST_F(ToolBars, EmbedImagesAndRefuseWhatIsNone)
{
    const QTemporaryDir folder;
    QImage image(800, 400, QImage::Format_RGB32);
    image.fill(Qt::red);
    ui.fileName = folder.filePath(u"a.png"_s);
    ASSERT_TRUE(image.save(ui.fileName));
    click("image");
    const QString body = toXhtml(*edit->document(), {});
    EXPECT_TRUE(body.contains(u"<img src=\"data:image/png;base64,iVBOR"_s)) << body;
    EXPECT_TRUE(body.contains(u"width=\"640\" height=\"320\""_s)) << body;

    const QString before = edit->toPlainText();
    for (const auto &[name, bytes] :
         {std::pair(u"large.png"_s, QByteArray(3'000'000, 'x')),
          std::pair(u"text.png"_s, QByteArray("no image")), std::pair(u"missing.png"_s, QByteArray())}) {
        ui.fileName = folder.filePath(name);
        if (!bytes.isEmpty()) {
            writeFile(ui.fileName, bytes);
        }
        click("image");
        ASSERT_FALSE(ui.warnings.isEmpty());
        EXPECT_TRUE(ui.warnings.last().text.contains(name));
    }
    EXPECT_TRUE(ui.warnings.first().text.contains(u"2 MiB"_s));
    ui.fileName.clear();
    click("image");
    EXPECT_EQ(ui.warnings.size(), 3);
    EXPECT_EQ(edit->toPlainText(), before);
}

TEST_F(ToolBars, ActOnTheirPresentEditorOnly)
{
    TextEdit other;
    other.setPlainText(u"other"_s);
    bars->setTextEdit(&other);
    other.selectAll();
    click("bold");
    EXPECT_FALSE(formatBehind(0).fontWeight() == QFont::Bold);
    EXPECT_EQ(other.currentCharFormat().fontWeight(), int(QFont::Bold));
    {
        TextEdit brief;
        bars->setTextEdit(&brief);
    }
    EXPECT_EQ(bars->textEdit(), nullptr);
    EXPECT_FALSE(bars->isEnabled());
    QTest::keyClick(edit, Qt::Key_B, Qt::ControlModifier);
}

TEST_F(ToolBars, HaveIconsAndToolTips)
{
    for (const QToolButton *button : bars->findChildren<QToolButton *>()) {
        if (button->objectName() != QLatin1String("qt_toolbar_ext_button")) {
            const QImage icon =
                button->icon().pixmap(24, 24).toImage().convertToFormat(QImage::Format_Alpha8);
            const QByteArrayView alphas(icon.constBits(), icon.sizeInBytes());
            EXPECT_TRUE(std::any_of(alphas.begin(), alphas.end(), [](char alpha) { return alpha != 0; }))
                << button->objectName();
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName();
        }
    }
}

} // namespace
