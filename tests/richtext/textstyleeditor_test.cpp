// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/textstyleeditor.h"

#include "host/richtext/stylesheet.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTextDocument>

#include <functional>

namespace {

[[nodiscard]] QString u(const char *text)
{
    return QString::fromUtf8(text);
}

[[nodiscard]] QString defaultSheet()
{
    QFile file(u(BOM_SOURCE_DIR "/resources/html/userstyle.css"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

/// The editor, run with a user who does `doing` and then presses OK, unless the dialog is gone by then.
class TextStyleEditorTest : public testing::Test
{
protected:
    template<typename Widget>
    [[nodiscard]] Widget *find(const char *path)
    {
        QWidget *at = &m_editor;
        for (const QString &name : u(path).split(u'/')) {
            at = at->findChild<QWidget *>(name);
            EXPECT_NE(at, nullptr) << path;
        }
        return qobject_cast<Widget *>(at);
    }

    bool run(const QString &css, const std::function<void()> &doing)
    {
        m_editor.loadCSS(css);
        QTimer::singleShot(0, &m_editor, [this, doing] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&m_editor));
            doing();
            if (m_editor.isVisible()) {
                press(QDialogButtonBox::Ok);
            }
        });
        return m_editor.run();
    }

    void press(QDialogButtonBox::StandardButton which)
    {
        QTest::mouseClick(find<QDialogButtonBox>("buttonBox")->button(which), Qt::LeftButton);
    }

    void click(const char *path)
    {
        auto *button = find<QAbstractButton>(path);
        const bool box = qobject_cast<QCheckBox *>(button);
        QTest::mouseClick(button, Qt::LeftButton, {}, box ? QPoint(8, button->height() / 2) : QPoint());
    }

    /// Types into a field in place of what stands there, and confirms by leaving it.
    void type(const char *path, const char *text)
    {
        auto *field = find<QWidget>(path);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, u(text));
        QTest::keyClick(field, Qt::Key_Tab);
    }

    void pick(const char *path, int steps)
    {
        auto *combo = find<QComboBox>(path);
        for (; steps > 0; --steps) {
            QTest::keyClick(combo, Qt::Key_Down);
        }
    }

    void select(const char *title)
    {
        auto *list = find<QListWidget>("styleList");
        const auto found = list->findItems(u(title), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << title;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found.first()).center());
    }

    void typeCss(const char *text)
    {
        find<QTabWidget>("tabs")->setCurrentIndex(1);
        auto *edit = find<QPlainTextEdit>("cssEdit");
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, u(text));
    }

    /// What a rule of one declaration says after an action on one control.
    [[nodiscard]] std::string after(const char *body, const std::function<void()> &doing)
    {
        QSignalSpy changed(&m_editor, qOverload<const QString &>(&TextStyleEditor::currentStyleChanged));
        EXPECT_TRUE(run(u("/*_HOne*/\np { ") + u(body) + u(" }\n"), doing));
        EXPECT_EQ(changed.count(), 1) << body;
        return StyleSheet(m_editor.getCSS()).body(u("p")).simplified().toStdString();
    }

    TextStyleEditor m_editor;
    QColor m_answer = QColor(u("#123456"));

    void SetUp() override
    {
        m_editor.setColorChooser([this](QWidget *, const QColor &, const QString &) { return m_answer; });
    }
};

} // namespace

TEST_F(TextStyleEditorTest, UntouchedTextStaysAsItWas)
{
    for (const QString &css :
         {defaultSheet(), QString(defaultSheet()).replace(u'\n', u("\r\n")), QString(),
          u("p { margin: 1em 2% ; font:bold 12px/1 'A b',serif;color:RED;border:thin solid}"),
          u("p { open /*")}) {
        EXPECT_TRUE(run(css, [&] {
            auto *list = find<QListWidget>("styleList");
            for (int row = 0; row < list->count(); ++row) {
                list->setCurrentRow(row);
                for (QWidget *field : m_editor.findChildren<QWidget *>()) {
                    field->setFocus();
                }
            }
            find<QTabWidget>("tabs")->setCurrentIndex(1);
            find<QTabWidget>("tabs")->setCurrentIndex(0);
        }));
        EXPECT_EQ(m_editor.getCSS(), css);
    }
}

TEST_F(TextStyleEditorTest, FontControlsWriteOneDeclaration)
{
    EXPECT_EQ(after("", [this] { type("familyCombo", "Some Font, serif"); }),
              "font-family: \"Some Font\", serif;");
    EXPECT_EQ(after("font-family: 'Liberation Sans'", [this] { type("familyCombo", ""); }), "");
    EXPECT_EQ(after("", [this] { type("sizeSpin", "10.5"); }), "font-size: 10.5pt;");
    EXPECT_EQ(after("", [this] { QTest::keyClick(find<QWidget>("sizeSpin"), Qt::Key_Up); }),
              "font-size: 12pt;");
    EXPECT_EQ(after("font-size: 16px", [this] { QTest::keyClick(find<QWidget>("sizeSpin"), Qt::Key_Up); }),
              "font-size: 13pt");
    EXPECT_EQ(after("font-size: 1em; color: red", [this] { type("sizeSpin", ""); }), "color: red");
    EXPECT_EQ(after("", [this] { click("boldBox"); }), "font-weight: bold;");
    EXPECT_EQ(after("font-weight: 700", [this] { click("boldBox"); }), "font-weight: normal");
    EXPECT_EQ(after("font-weight: normal;", [this] { click("boldBox"); }), "");
    EXPECT_EQ(after("", [this] { click("italicBox"); }), "font-style: italic;");
    EXPECT_EQ(after("text-decoration: line-through", [this] { click("underlineBox"); }),
              "text-decoration: underline line-through");
    EXPECT_EQ(after("", [this] { click("underlineBox"); }), "text-decoration: underline;");
    EXPECT_EQ(after("font: bold 10pt serif", [this] { type("sizeSpin", "11"); }),
              "font: bold 10pt serif; font-size: 11pt;");
    EXPECT_EQ(after("font-weight: bold !important", [this] { click("boldBox"); }),
              "font-weight: normal !important");
}

TEST_F(TextStyleEditorTest, ColorControls)
{
    EXPECT_EQ(after("", [this] { click("colorField/chooseButton"); }), "color: #123456;");
    EXPECT_EQ(after("color: red", [this] { click("colorField/clearButton"); }), "");
    EXPECT_EQ(after("background: red", [this] { click("backgroundField/chooseButton"); }),
              "background: #123456");
    EXPECT_EQ(after("background: url(a) red", [this] { click("backgroundField/chooseButton"); }),
              "background: url(a) red; background-color: #123456;");
    EXPECT_EQ(after("", [this] { click("backgroundField/noneButton"); }), "background-color: transparent;");
    m_answer = QColor(1, 2, 3, 51);
    EXPECT_EQ(after("", [this] { click("backgroundField/chooseButton"); }),
              "background-color: rgba(1, 2, 3, 0.2);");
    m_answer = QColor();
    EXPECT_TRUE(run(u("/*_HOne*/ p {}"), [this] { click("colorField/chooseButton"); }));
    EXPECT_EQ(m_editor.getCSS(), u("/*_HOne*/ p {}"));
}

TEST_F(TextStyleEditorTest, ChosenColorsAreSeenInThePreviewAndInADocument)
{
    const auto holds = [](const QImage &image, const QColor &color) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count > 100;
    };
    QImage preview;
    std::ignore = after("font-size: 30pt", [&] {
        click("backgroundField/chooseButton");
        preview = find<QWidget>("preview")->grab().toImage();
    });
    EXPECT_TRUE(holds(preview, m_answer));
    QTextDocument document;
    document.setHtml(u("<style>") + m_editor.getCSS() + u("</style><p>text</p>"));
    QImage page(200, 100, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    document.drawContents(&painter);
    painter.end();
    EXPECT_TRUE(holds(page, m_answer));
}

TEST_F(TextStyleEditorTest, AlignmentMarginsAndPadding)
{
    EXPECT_EQ(after("", [this] { pick("alignCombo", 1); }), "text-align: left;");
    EXPECT_EQ(after("text-align: right", [this] { pick("alignCombo", 1); }), "text-align: justify");
    EXPECT_EQ(after("", [this] { pick("verticalCombo", 1); }), "vertical-align: top;");
    const std::pair<const char *, const char *> sides[] = {
        {"Top", "top"}, {"Right", "right"}, {"Bottom", "bottom"}, {"Left", "left"}};
    for (const char *family : {"margin", "padding"}) {
        for (const auto &[name, side] : sides) {
            const QByteArray spin = QByteArray(family) + name + "Spin";
            const std::string property = std::string(family) + "-" + side;
            EXPECT_EQ(after("", [&] { type(spin, "2.5"); }), property + ": 2.5pt;");
            EXPECT_EQ(after((property + ": 5mm").c_str(), [&] { type(spin, ""); }), "");
        }
    }
    EXPECT_EQ(after("margin: 5mm", [this] { type("marginLeftSpin", "-3"); }), "margin: 5mm 5mm 5mm -3pt");
    EXPECT_EQ(after("padding: 1pt 3pt 2pt 4pt", [this] { type("paddingTopSpin", "2"); }),
              "padding: 2pt 3pt 2pt 4pt");
    EXPECT_EQ(after("margin: 1pt 2em", [this] { type("marginTopSpin", ""); }),
              "margin-right: 2em; margin-bottom: 1pt; margin-left: 2em;");
    EXPECT_EQ(after("margin-top: 1pt; margin: 2pt; margin-top: 3pt", [this] { type("marginTopSpin", "4"); }),
              "margin: 2pt; margin-top: 4pt");
}

TEST_F(TextStyleEditorTest, Borders)
{
    EXPECT_EQ(after("", [this] { pick("borderStyleCombo", 1); }), "border-style: none;");
    EXPECT_EQ(after("border-style: none", [this] { pick("borderStyleCombo", 1); }), "border-style: solid");
    EXPECT_EQ(after("border: 1pt solid red", [this] { type("borderWidthSpin", "2"); }),
              "border: 2pt solid red");
    EXPECT_EQ(after("", [this] { click("borderColorField/chooseButton"); }), "border-color: #123456;");
    EXPECT_EQ(after("border-bottom: 1pt solid #000099", [this] { click("borderColorField/chooseButton"); }),
              "border-bottom: 1pt solid #123456"); // the side that has a border is chosen at first
    EXPECT_EQ(after("border: 1pt solid red",
                    [this] {
                        pick("borderSideCombo", 3);
                        pick("borderStyleCombo", 1);
                    }),
              "border: 1pt solid red; border-bottom-style: dashed;");
    EXPECT_EQ(after("border-top-width: 1pt; border-left-width: 3pt",
                    [this] {
                        QTest::keyClick(find<QWidget>("borderSideCombo"), Qt::Key_Home);
                        type("borderWidthSpin", "2");
                    }),
              "border-width: 2pt;");
    EXPECT_EQ(after("border: 1pt solid red", [this] { type("borderWidthSpin", ""); }), "border: solid red");
}

TEST_F(TextStyleEditorTest, OpenPropertiesShowAsOpen)
{
    m_editor.loadCSS(u("/*_HOne*/ p { margin: 5mm; color: rgb(0,0,153) }"));
    EXPECT_EQ(find<QAbstractSpinBox>("sizeSpin")->text(), u("inherited"));
    EXPECT_EQ(find<QAbstractSpinBox>("paddingTopSpin")->text(), u("not set"));
    EXPECT_EQ(find<QAbstractSpinBox>("marginTopSpin")->text(), u("14.17 pt"));
    EXPECT_EQ(find<QAbstractSpinBox>("marginTopSpin")->toolTip(), u("Written as 5mm"));
    EXPECT_EQ(find<QCheckBox>("boldBox")->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(find<QComboBox>("familyCombo")->currentText(), QString());
    EXPECT_EQ(find<QComboBox>("alignCombo")->currentText(), u("Inherited"));
    EXPECT_EQ(find<QPushButton>("backgroundField/chooseButton")->text(), u("not set"));
    EXPECT_EQ(find<QPushButton>("colorField/chooseButton")->text(), u("rgb(0,0,153)"));
}

TEST_F(TextStyleEditorTest, ListNamesTheRulesAndIsSearched)
{
    QSignalSpy selected(&m_editor, &TextStyleEditor::currentSelectorChanged);
    EXPECT_TRUE(run(defaultSheet(), [this] {
        auto *list = find<QListWidget>("styleList");
        EXPECT_EQ(list->count(), 22);
        m_editor.hideUserStyles();
        EXPECT_EQ(list->count(), 21);
        EXPECT_EQ(list->item(14)->text(), u("Odd Rows"));
        EXPECT_EQ(list->item(14)->toolTip(), u("p.oddfield"));
        QTest::keyClicks(list, u("od"));
        EXPECT_EQ(list->currentRow(), 14);
        QTest::keyClicks(find<QLineEdit>("filterEdit"), u("ROWS"));
        EXPECT_TRUE(list->item(0)->isHidden());
        EXPECT_FALSE(list->item(15)->isHidden());
        select("Even Rows");
    }));
    QStringList told;
    for (const QList<QVariant> &one : selected) {
        told.append(one.first().toString());
    }
    EXPECT_EQ(told, QStringList({u("body"), u("p.oddfield"), u("p.evenfield"), QString()}));
    EXPECT_EQ(m_editor.getCSS(), defaultSheet());
}

TEST_F(TextStyleEditorTest, CancelGivesBackWhatWasLoaded)
{
    QSignalSpy preview(&m_editor, qOverload<const QString &, bool>(&TextStyleEditor::currentStyleChanged));
    for (const bool byKey : {false, true}) {
        EXPECT_FALSE(run(defaultSheet(), [this, byKey] {
            click("boldBox");
            press(QDialogButtonBox::Reset);
            typeCss("p {}");
            if (byKey) {
                QTest::keyClick(find<QWidget>("cssEdit"), Qt::Key_Escape);
            } else {
                press(QDialogButtonBox::Cancel);
            }
        }));
        EXPECT_EQ(m_editor.getCSS(), defaultSheet());
        EXPECT_EQ(preview.constLast(), QList<QVariant>({defaultSheet(), true}));
    }
}

TEST_F(TextStyleEditorTest, ResetIsAnsweredByLoadingAndIsAnEdit)
{
    QObject::connect(&m_editor, &TextStyleEditor::resetCSS, &m_editor,
                     [this] { m_editor.loadCSS(defaultSheet()); });
    QSignalSpy preview(&m_editor, qOverload<const QString &, bool>(&TextStyleEditor::currentStyleChanged));
    EXPECT_TRUE(run(u("p { color: red }"), [this] { press(QDialogButtonBox::Reset); }));
    EXPECT_EQ(m_editor.getCSS(), defaultSheet());
    ASSERT_EQ(preview.count(), 2);
    EXPECT_EQ(preview.at(0), QList<QVariant>({defaultSheet(), true}));
    EXPECT_EQ(preview.at(1), QList<QVariant>({defaultSheet(), false}));
    EXPECT_FALSE(run(u("p { color: red }"), [this] {
        press(QDialogButtonBox::Reset);
        press(QDialogButtonBox::Cancel);
    }));
    EXPECT_EQ(m_editor.getCSS(), u("p { color: red }"));
}

TEST_F(TextStyleEditorTest, TextIsReadAfterAPauseAndTheListFollows)
{
    QSignalSpy changed(&m_editor, qOverload<const QString &>(&TextStyleEditor::currentStyleChanged));
    const QString css = u("p { content: \"a\u00a0b\" }\r\n");
    EXPECT_TRUE(run(css, [&] {
        auto *list = find<QListWidget>("styleList");
        auto *fault = find<QLabel>("faultLabel");
        typeCss("q {");
        EXPECT_EQ(changed.count(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return changed.count() == 1; }, 2000));
        EXPECT_EQ(list->count(), 2);
        EXPECT_EQ(fault->text(), u("Line 2 of the style sheet: this brace is not closed."));
        QTest::keyClick(find<QWidget>("cssEdit"), Qt::Key_Return);
        QTest::keyClicks(find<QWidget>("cssEdit"), u("}"));
        find<QTabWidget>("tabs")->setCurrentIndex(0);
        EXPECT_EQ(changed.count(), 2);
        EXPECT_TRUE(fault->text().isEmpty());
        find<QTabWidget>("tabs")->setCurrentIndex(1);
        typeCss("/* end */"); // and OK at once
    }));
    EXPECT_EQ(m_editor.getCSS(), css + u("q {\r\n}/* end */"));
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(TextStyleEditorTest, EnterAcceptsWhatWasTyped)
{
    EXPECT_TRUE(run(u("p {}"), [this] {
        auto *spin = find<QWidget>("sizeSpin");
        spin->setFocus();
        QTest::keyClick(spin, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(spin, u("9"));
        QTest::keyClick(spin, Qt::Key_Return);
        EXPECT_FALSE(m_editor.isVisible());
    }));
    EXPECT_EQ(StyleSheet(m_editor.getCSS()).value(u("p"), u("font-size")), u("9pt"));
}

TEST_F(TextStyleEditorTest, EveryControlHasANameForScreenReaders)
{
    for (QWidget *widget : m_editor.findChildren<QWidget *>()) {
        const QWidget *parent = widget->parentWidget();
        const bool inner = parent->inherits("QTabBar") || parent->inherits("QLineEdit");
        if (!inner && (widget->inherits("QAbstractSpinBox") || widget->inherits("QComboBox") ||
                       widget->inherits("QToolButton") || widget->inherits("QPlainTextEdit"))) {
            EXPECT_FALSE(widget->accessibleName().isEmpty() || widget->objectName().isEmpty())
                << qPrintable(widget->objectName());
        }
    }
}
