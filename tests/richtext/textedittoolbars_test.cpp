// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedittoolbars.h"

#include "richtext/editor/textedit.h"
#include "richtext/xhtml/xhtmlwriter.h"
#include "support/printtext.h"
#include "support/scriptedui.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
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

#include <functional>

namespace {

class ToolBars : public testing::Test
{
protected:
    ToolBars()
        : bars(new TextEditToolBars)
        , edit(new TextEdit)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(bars);
        layout->addWidget(edit);
        window.show();
        bars->setTextEdit(edit);
        edit->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClicks(edit, QStringLiteral("one two"));
    }

    void click(const char *tool)
    {
        auto *button = bars->findChild<QWidget *>(QLatin1String(tool) + QStringLiteral("Button"));
        ASSERT_NE(button, nullptr) << tool;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    bool isOn(const char *tool) const { return bars->findChild<QAction *>(QLatin1String(tool))->isChecked(); }
    void choose(const char *tool, const QString &entry)
    {
        const auto *button = bars->findChild<QToolButton *>(QLatin1String(tool));
        for (QAction *action : button->menu()->actions()) {
            if (action->text() == entry) {
                action->trigger();
                return;
            }
        }
        FAIL() << qPrintable(entry);
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
    /// Presses Ctrl+K and does something in the dialog that opens.
    void inLinkDialog(const std::function<void(QDialog &)> &act)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        bool isShown = false;
        QTimer::singleShot(0, &window, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            isShown = dialog != nullptr;
            if (isShown) {
                act(*dialog);
                dialog->close();
            }
        });
        QTest::keyClick(edit, Qt::Key_K, Qt::ControlModifier);
        EXPECT_TRUE(isShown);
    }
    static void fill(QDialog &dialog, const char *field, const QString &text)
    {
        auto *line = dialog.findChild<QLineEdit *>(QLatin1String(field));
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    ScriptedUi ui;
    QWidget window;
    TextEditToolBars *bars;
    TextEdit *edit;
};

} // namespace

TEST_F(ToolBars, FormatWithKeysAndButtonsAndFollowTheCursor)
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
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClick(edit, Qt::Key_Right);
    EXPECT_TRUE(isOn("bold"));
}

TEST_F(ToolBars, SetSizeFamilyAndColours)
{
    select(0, 3);
    auto *size = bars->findChild<QComboBox *>(QStringLiteral("fontSize"));
    size->lineEdit()->selectAll();
    QTest::keyClicks(size->lineEdit(), QStringLiteral("17.5"));
    QTest::keyClick(size->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(formatBehind(0).fontPointSize(), 17.5);
    size->lineEdit()->selectAll();
    QTest::keyClicks(size->lineEdit(), QStringLiteral("-3x"));
    QTest::keyClick(size->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(formatBehind(0).fontPointSize(), 17.5);
    EXPECT_EQ(size->currentText(), QStringLiteral("17.5"));

    QTest::keyClick(size, Qt::Key_Down);
    EXPECT_EQ(formatBehind(0).fontPointSize(), size->currentText().toDouble());

    choose("textcolour", QStringLiteral("Red"));
    choose("fillcolour", QStringLiteral("Light Blue"));
    EXPECT_EQ(formatBehind(0).foreground().color(), QColor(0xcc0000));
    EXPECT_EQ(formatBehind(0).background().color(), QColor(0xdde8ff));
    choose("fillcolour", QStringLiteral("No Background"));
    EXPECT_EQ(formatBehind(0).background().style(), Qt::NoBrush);
    EXPECT_EQ(formatBehind(5).foreground().style(), Qt::NoBrush);
}

TEST_F(ToolBars, SetTheSizeOfHeadings)
{
    edit->document()->setHtml(QStringLiteral("<h1>head</h1><p>text</p>"));
    edit->selectAll();
    auto *size = bars->findChild<QComboBox *>(QStringLiteral("fontSize"));
    size->lineEdit()->selectAll();
    QTest::keyClicks(size->lineEdit(), QStringLiteral("8"));
    QTest::keyClick(size->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(formatBehind(1).font().pointSizeF(), 8);
    EXPECT_EQ(formatBehind(6).font().pointSizeF(), 8);
    edit->undo();
    EXPECT_GT(QFontInfo(formatBehind(1).font()).pointSizeF(), 8);
}

TEST_F(ToolBars, AlignAndIndentParagraphs)
{
    click("aligncentre");
    EXPECT_EQ(edit->alignment(), Qt::AlignHCenter);
    EXPECT_TRUE(isOn("aligncentre"));
    EXPECT_FALSE(isOn("alignleft"));
    click("indent");
    click("indent");
    click("outdent");
    EXPECT_EQ(edit->textCursor().blockFormat().leftMargin(), 40);
    click("outdent");
    click("outdent");
    EXPECT_EQ(edit->textCursor().blockFormat().leftMargin(), 0);
}

TEST_F(ToolBars, MakeListsAndNestThem)
{
    click("numbers");
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, QStringLiteral("deeper"));
    click("indent");
    EXPECT_TRUE(isOn("numbers"));
    ASSERT_NE(edit->textCursor().currentList(), nullptr);
    EXPECT_EQ(edit->textCursor().currentList()->format().indent(), 2);
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, QStringLiteral("back"));
    click("outdent");
    EXPECT_EQ(edit->textCursor().currentList()->itemText(edit->textCursor().block()), QStringLiteral("2."));
    click("bullets");
    EXPECT_TRUE(isOn("bullets"));
    EXPECT_FALSE(isOn("numbers"));
    click("bullets");
    EXPECT_EQ(edit->textCursor().currentList(), nullptr);
    EXPECT_EQ(edit->textCursor().blockFormat().indent(), 0);
}

TEST_F(ToolBars, InsertChangeAndRemoveLinks)
{
    select(4, 7);
    inLinkDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>(QStringLiteral("linkText"))->text(), QStringLiteral("two"));
        fill(dialog, "linkAddress", QStringLiteral("javascript:alert(1)"));
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        fill(dialog, "linkAddress", QStringLiteral("https://x.org/?a=1&b"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(formatBehind(5).anchorHref(), QStringLiteral("https://x.org/?a=1&b"));
    QTest::keyClicks(edit, QStringLiteral(" more"));
    EXPECT_FALSE(formatBehind(9).isAnchor());

    select(5, 5);
    inLinkDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>(QStringLiteral("linkAddress"))->text(),
                  QStringLiteral("https://x.org/?a=1&b"));
        fill(dialog, "linkText", QStringLiteral("2"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("one 2 more"));
    select(5, 5);
    inLinkDialog([](QDialog &dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("removeLink")), Qt::LeftButton);
    });
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("one 2 more"));
    EXPECT_FALSE(formatBehind(4).isAnchor());
    EXPECT_FALSE(formatBehind(4).fontUnderline());
    edit->undo();
    EXPECT_TRUE(formatBehind(4).isAnchor());
}

TEST_F(ToolBars, EmbedImagesAndRefuseWhatIsNone)
{
    QTemporaryDir folder;
    const auto path = [&](const char *name) { return folder.filePath(QLatin1String(name)); };
    QImage image(800, 400, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path("a.png")));
    ui.fileName = path("a.png");
    click("image");
    const QString body = xhtmlBody(*edit->document(), {});
    EXPECT_TRUE(body.contains(QStringLiteral("<img src=\"data:image/png;base64,iVBOR"))) << qPrintable(body);
    EXPECT_TRUE(body.contains(QStringLiteral("width=\"640\" height=\"320\"")));

    const QString before = edit->toPlainText();
    QFile large(path("large.png"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly));
    large.write(QByteArray(3'000'000, 'x'));
    large.close();
    QFile text(path("text.png"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no image");
    text.close();
    for (const char *name : {"large.png", "text.png", "missing.png"}) {
        ui.fileName = path(name);
        click("image");
        ASSERT_FALSE(ui.warnings.isEmpty());
        EXPECT_TRUE(ui.warnings.last().text.contains(QLatin1String(name)));
    }
    EXPECT_TRUE(ui.warnings.first().text.contains(QStringLiteral("2 MiB")));
    ui.fileName.clear();
    click("image");
    EXPECT_EQ(ui.warnings.size(), 3);
    EXPECT_EQ(edit->toPlainText(), before);
}

TEST_F(ToolBars, UndoRedoAndChangeEditors)
{
    while (bars->findChild<QAction *>(QStringLiteral("undo"))->isEnabled()) {
        click("undo");
    }
    EXPECT_EQ(edit->toPlainText(), QString());
    while (bars->findChild<QAction *>(QStringLiteral("redo"))->isEnabled()) {
        click("redo");
    }
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("one two"));

    TextEdit other;
    other.setPlainText(QStringLiteral("other"));
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

TEST_F(ToolBars, HaveIconsNamesAndToolTips)
{
    for (const QToolButton *button : bars->findChildren<QToolButton *>()) {
        if (button->objectName() == QLatin1String("qt_toolbar_ext_button")) {
            continue;
        }
        const QImage icon = button->icon().pixmap(24, 24).toImage();
        bool isDrawn = false;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                isDrawn = isDrawn || qAlpha(icon.pixel(x, y)) > 0;
            }
        }
        EXPECT_TRUE(isDrawn) << qPrintable(button->objectName());
        EXPECT_FALSE(button->toolTip().isEmpty());
    }
}
