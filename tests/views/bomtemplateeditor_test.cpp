// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomtemplateeditor.h"

#include "richtext/editor/textedit.h"
#include "richtext/editor/textedithruler.h"
#include "richtext/editor/textedittoolbars.h"
#include "support/printtext.h"
#include "support/scriptedui.h"
#include "templates/templatepaths.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

const QString headerText =
    QStringLiteral("\n<p  class='DocHeader'>Company &amp; Co<br/></p>\r\n<!-- kept -->");
const QString footerText = QStringLiteral("<p class='DocFooter'>Page</p>");

class TemplateEditor : public testing::Test
{
protected:
    TemplateEditor()
        : editor(&report, nullptr)
    {
        editor.setCSS(defaultStyleSheet());
        editor.setHeader(headerText);
        editor.setFooter(footerText);
    }

    /// Runs the dialog and does something in it.
    bool run(const std::function<void()> &act, QDialogButtonBox::StandardButton end = QDialogButtonBox::Ok)
    {
        QTimer::singleShot(0, &editor, [this, act, end] {
            act();
            auto *box = editor.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
            QTest::mouseClick(box->button(end), Qt::LeftButton);
        });
        return editor.run();
    }
    template<class Widget>
    Widget *child(const char *name)
    {
        return editor.findChild<Widget *>(QLatin1String(name));
    }
    void showTab(int index)
    {
        QTabBar *bar = child<QTabWidget>("tabWidget")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }

    ScriptedUi ui;
    TextEdit report;
    BOMTemplateEditor editor;
};

} // namespace

TEST_F(TemplateEditor, GivesBackUntouchedTextsByteForByte)
{
    EXPECT_FALSE(run([&] { QTest::keyClicks(child<TextEdit>("headerTextEdit"), QStringLiteral("x")); },
                     QDialogButtonBox::Cancel));
    const QString hostileCss = QStringLiteral("p { } </style><script>x</script> }{ \u0001 %1");
    const QString hostile = QStringLiteral("</body></html><p>%1</div>") + QChar(0xD800) + QChar(2);
    for (const auto &[css, header] : {std::pair(defaultStyleSheet(), headerText), {hostileCss, hostile}}) {
        editor.setCSS(css);
        editor.setHeader(header);
        EXPECT_TRUE(run([&] {
            showTab(1);
            showTab(0);
        }));
        EXPECT_EQ(editor.header(), header);
        EXPECT_EQ(editor.footer(), footerText);
        EXPECT_EQ(editor.css(), css);
    }
}

TEST_F(TemplateEditor, TellsOfATextThatItCannotShow)
{
    const QString deep = QStringLiteral("<div>").repeated(200);
    editor.setHeader(deep);
    EXPECT_TRUE(run([] {}));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.startsWith(QStringLiteral("Header: the text cannot be shown.")));
    EXPECT_EQ(editor.header(), deep);
}

TEST_F(TemplateEditor, TypesIntoAnEmptyHeaderInTheLookOfHeaders)
{
    editor.setHeader({});
    EXPECT_TRUE(run([] {}));
    EXPECT_EQ(editor.header(), QString());
    EXPECT_TRUE(run([&] { QTest::keyClicks(child<TextEdit>("headerTextEdit"), QStringLiteral("Hi")); }));
    EXPECT_EQ(editor.header(), QStringLiteral("<p class=\"DocHeader\">Hi</p>"));
    editor.setHeader(editor.header());
    EXPECT_TRUE(run([&] {
        QTest::keyClick(child<TextEdit>("headerTextEdit"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(child<TextEdit>("headerTextEdit"), Qt::Key_Delete);
    }));
    EXPECT_EQ(editor.header(), QString());
}

TEST_F(TemplateEditor, ActsOnTheShownTabAndWritesOnlyThat)
{
    EXPECT_TRUE(run([&] {
        auto *bars = child<TextEditToolBars>("toolBars");
        auto *footer = child<TextEdit>("footerTextEdit");
        EXPECT_EQ(bars->textEdit(), child<TextEdit>("headerTextEdit"));
        showTab(1);
        EXPECT_EQ(bars->textEdit(), footer);
        footer->selectAll();
        QTest::mouseClick(child<QWidget>("boldButton"), Qt::LeftButton);
        QTest::keyClick(footer, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(footer, QStringLiteral(" <2>"));
    }));
    EXPECT_EQ(editor.header(), headerText);
    EXPECT_EQ(
        editor.footer(),
        QStringLiteral("<p class=\"DocFooter\"><span style=\"font-weight:700;\">Page &lt;2&gt;</span></p>"));
}

TEST_F(TemplateEditor, KeepsParagraphsWithABoxParagraphs)
{
    editor.setCSS(defaultStyleSheet() +
                  QStringLiteral("\np.DocHeader { padding: 4pt; border-bottom: 1pt solid "
                                 "#ff0000; background-color: #eeeeee }"));
    editor.setHeader(QStringLiteral("<p class='DocHeader'>one</p><p class='DocHeader'>two</p>"));
    EXPECT_TRUE(run([&] {
        auto *edit = child<TextEdit>("headerTextEdit");
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::mouseClick(child<QWidget>("italicButton"), Qt::LeftButton);
    }));
    EXPECT_EQ(editor.header(),
              QStringLiteral("<p class=\"DocHeader\"><span style=\"font-style:italic;\">one</span></p>\n"
                             "<p class=\"DocHeader\"><span style=\"font-style:italic;\">two</span></p>"));
}

TEST_F(TemplateEditor, PutsMovedPaperMarginsIntoTheBodyRule)
{
    EXPECT_TRUE(run([&] {
        auto *edit = child<TextEdit>("headerTextEdit");
        QTest::keyClicks(edit, QStringLiteral("typed"));
        Q_EMIT child<TextEditHRuler>("headerHRuler")->paperMarginsChanged(40, 50);
        EXPECT_EQ(edit->viewport()->width(), edit->width() - 2 * edit->frameWidth() - qRound(40 / 0.75));
        QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    }));
    EXPECT_EQ(editor.header(), headerText);
    const StyleSheet css(editor.css());
    EXPECT_TRUE(
        css.value(QStringLiteral("body"), QStringLiteral("margin")).contains(QStringLiteral(" 40.0pt")))
        << qPrintable(css.body(QStringLiteral("body")));
    EXPECT_EQ(css.body(QStringLiteral("p.DocHeader")),
              StyleSheet(defaultStyleSheet()).body(QStringLiteral("p.DocHeader")));
}
