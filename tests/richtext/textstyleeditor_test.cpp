// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textstyleeditor.h"

#include "richtext/css/stylesheet.h"
#include "richtext/documents.h"
#include "support/printtext.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <functional>

namespace {

using Doing = std::function<void()>;

/// The editor, run with a user who does something and then presses OK, unless the dialog is gone by then.
class StyleEditor : public testing::Test
{
protected:
    StyleEditor()
    {
        editor.setColorChooser([this](QWidget *, const QColor &, const QString &) { return answer; });
    }

    template<typename Widget>
    [[nodiscard]] Widget *find(const QByteArray &path)
    {
        QWidget *at = &editor;
        for (const QByteArray &name : path.split('/')) {
            at = at->findChild<QWidget *>(QLatin1String(name));
            EXPECT_NE(at, nullptr) << path.constData();
        }
        return qobject_cast<Widget *>(at);
    }

    bool run(const QString &css, const Doing &doing)
    {
        editor.loadCSS(css);
        QTimer::singleShot(0, &editor, [this, doing] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
            doing();
            if (editor.isVisible()) {
                press(QDialogButtonBox::Ok);
            }
        });
        return editor.run();
    }

    void press(QDialogButtonBox::StandardButton which)
    {
        find<QDialogButtonBox>("buttonBox")->button(which)->click();
    }

    /// "NAME" clicks a button, "NAME=TEXT" types into a field in place of what stands there and leaves it, or
    /// goes down TEXT entries of a combo box; "Up" and "Home" are keys. Several are separated by " + ".
    void act(const QByteArray &steps)
    {
        for (const QString &text : QString::fromUtf8(steps).split(u" + "_s)) {
            const QByteArray step = text.toUtf8();
            auto *field = find<QWidget>(step.split('=').first());
            const QByteArray input = step.mid(step.indexOf('=') + 1);
            const auto *combo = qobject_cast<QComboBox *>(field);
            if (auto *button = qobject_cast<QAbstractButton *>(field)) {
                button->click();
            } else if (input == "Up" || input == "Home") {
                QTest::keyClick(field, input == "Up" ? Qt::Key_Up : Qt::Key_Home);
            } else if (combo && !combo->isEditable()) {
                for (int i = 0; i < input.toInt(); ++i) {
                    QTest::keyClick(field, Qt::Key_Down);
                }
            } else {
                field->setFocus();
                QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
                QTest::keyClick(field, Qt::Key_Delete);
                QTest::keyClicks(field, QLatin1String(input.trimmed()));
                QTest::keyClick(field, input.endsWith('\n') ? Qt::Key_Return : Qt::Key_Tab);
            }
        }
    }

    void typeCss(const QString &text)
    {
        find<QTabWidget>("tabs")->setCurrentIndex(1);
        auto *edit = find<QPlainTextEdit>("cssEdit");
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, text);
    }

    [[nodiscard]] QString shown(const char *spin) { return find<QAbstractSpinBox>(spin)->text(); }

    /// What a rule says after one change of it.
    [[nodiscard]] QString after(const QString &body, const Doing &doing)
    {
        QSignalSpy changed(&editor, qOverload<const QString &>(&TextStyleEditor::currentStyleChanged));
        EXPECT_TRUE(run(u"/*_HOne*/\np { "_s + body + u" }\n"_s, doing));
        EXPECT_EQ(changed.count(), 1) << body;
        return StyleSheet(editor.getCSS()).body(u"p"_s).simplified();
    }

    TextStyleEditor editor;
    QColor answer = QColor(u"#123456"_s);
};

TEST_F(StyleEditor, WritesOneDeclarationForEachControl)
{
    for (const QString &line : dataFile("style-controls.txt").split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'#')) {
            const QStringList fields = line.split(u'|');
            ASSERT_EQ(fields.size(), 3) << line;
            const QByteArray steps = fields[1].trimmed().toUtf8();
            EXPECT_EQ(after(fields[0].trimmed(), [&] { act(steps); }), fields[2].trimmed()) << line;
        }
    }
}

TEST_F(StyleEditor, TakesTransparentColoursAndNoneWhenTheDialogIsCancelled)
{
    const auto choose = [this] { act("backgroundField/chooseButton"); };
    answer = QColor(1, 2, 3, 51);
    EXPECT_EQ(after({}, choose), u"background-color: rgba(1, 2, 3, 0.2);"_s);
    answer = QColor();
    EXPECT_TRUE(run(u"/*_HOne*/ p {}"_s, choose));
    EXPECT_EQ(editor.getCSS(), u"/*_HOne*/ p {}"_s);
}

TEST(ColorField, AsksWithTheColorDialog)
{
    ColorField field;
    field.setSubject(u"Subject"_s);
    field.showValue(u"transparent"_s);
    field.show();
    QTimer::singleShot(0, &field, [&] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), u"Subject"_s);
        EXPECT_EQ(dialog->currentColor().alpha(), 255);
        dialog->setCurrentColor(QColor(u"#00ff80"_s));
        dialog->accept();
    });
    QTest::mouseClick(field.findChild<QPushButton *>(), Qt::LeftButton);
    EXPECT_EQ(field.value(), u"#00ff80"_s);
    field.showValue(u"rgba(255, 200, 0, 0.5)"_s);
    EXPECT_EQ(field.findChild<QPushButton *>()->text(), u"#ffc800 50%"_s);
}

TEST_F(StyleEditor, ShowsChosenColoursInThePreview)
{
    QImage preview;
    std::ignore = after(u"font-size: 30pt"_s, [&] {
        act("backgroundField/chooseButton");
        preview = find<QWidget>("preview")->grab().toImage();
    });
    int count = 0;
    for (int at = 0; at < preview.width() * preview.height(); ++at) {
        count += preview.pixelColor(at % preview.width(), at / preview.width()) == answer ? 1 : 0;
    }
    EXPECT_GT(count, 100);
}

TEST_F(StyleEditor, ShowsOpenPropertiesAsOpen)
{
    editor.loadCSS(u"/*_HOne*/ p { margin: 5mm; color: rgb(0,0,153) }"_s);
    EXPECT_EQ(shown("sizeSpin"), u"inherited"_s);
    EXPECT_EQ(shown("paddingTopSpin"), u"not set"_s);
    EXPECT_EQ(shown("marginTopSpin"), u"14.17 pt"_s);
    EXPECT_EQ(find<QWidget>("marginTopSpin")->toolTip(), u"Written as 5mm"_s);
    EXPECT_EQ(find<QCheckBox>("boldBox")->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(find<QComboBox>("familyCombo")->currentText(), QString());
    EXPECT_EQ(find<QComboBox>("alignCombo")->currentText(), u"Inherited"_s);
    EXPECT_EQ(find<QPushButton>("backgroundField/chooseButton")->text(), u"not set"_s);
    EXPECT_EQ(find<QPushButton>("colorField/chooseButton")->text(), u"rgb(0,0,153)"_s);
    editor.loadCSS(u"/*_HOne*/ p { font-size: 9pt } p { color: red }"_s);
    EXPECT_EQ(shown("sizeSpin"), u"9 pt"_s);
}

TEST_F(StyleEditor, LeavesUntouchedTextAsItWas)
{
    for (const QString &css :
         {defaultSheet(), QString(defaultSheet()).replace(u'\n', u"\r\n"_s), QString(),
          u"p { margin: 1em 2% ; font:bold 12px/1 'A b',serif;color:RED;border:thin solid}"_s,
          u"p { open /*"_s}) {
        EXPECT_TRUE(run(css, [&] {
            auto *list = find<QListWidget>("styleList");
            for (int row = 0; row < list->count(); ++row) {
                list->setCurrentRow(row);
                std::ranges::for_each(editor.findChildren<QWidget *>(),
                                      [](QWidget *field) { field->setFocus(); });
            }
            find<QTabWidget>("tabs")->setCurrentIndex(1);
            find<QTabWidget>("tabs")->setCurrentIndex(0);
        }));
        EXPECT_EQ(editor.getCSS(), css);
    }
}

TEST_F(StyleEditor, ListsTheRulesByNameAndSearchesThem)
{
    QSignalSpy selected(&editor, &TextStyleEditor::currentSelectorChanged);
    EXPECT_TRUE(run(defaultSheet(), [this] {
        auto *list = find<QListWidget>("styleList");
        EXPECT_EQ(list->count(), 22);
        editor.hideUserStyles();
        EXPECT_EQ(list->count(), 21);
        EXPECT_EQ(list->item(14)->text(), u"Odd Rows"_s);
        EXPECT_EQ(list->item(14)->toolTip(), u"p.oddfield"_s);
        QTest::keyClicks(list, u"od"_s);
        EXPECT_EQ(list->currentRow(), 14);
        QTest::keyClicks(find<QLineEdit>("filterEdit"), u"ROWS"_s);
        EXPECT_TRUE(list->item(0)->isHidden());
        EXPECT_FALSE(list->item(15)->isHidden());
        const QRect even = list->visualItemRect(list->findItems(u"Even Rows"_s, Qt::MatchExactly).first());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, even.center());
    }));
    EXPECT_EQ(selected,
              (QList<QList<QVariant>>{{u"body"_s}, {u"p.oddfield"_s}, {u"p.evenfield"_s}, {QString()}}));
    EXPECT_EQ(editor.getCSS(), defaultSheet());
}

TEST_F(StyleEditor, TakesAResetForAnEditAndGivesBackWhatWasLoadedWhenCancelled)
{
    const QString before = u"p { color: red }"_s;
    QObject::connect(&editor, &TextStyleEditor::resetCSS, &editor,
                     [this] { editor.loadCSS(defaultSheet()); });
    QSignalSpy preview(&editor, qOverload<const QString &, bool>(&TextStyleEditor::currentStyleChanged));
    EXPECT_TRUE(run(before, [this] { press(QDialogButtonBox::Reset); }));
    EXPECT_EQ(editor.getCSS(), defaultSheet());
    ASSERT_EQ(preview.count(), 2);
    EXPECT_EQ(preview.at(0), QList<QVariant>({defaultSheet(), true}));
    EXPECT_EQ(preview.at(1), QList<QVariant>({defaultSheet(), false}));
    for (const bool byKey : {false, true}) {
        EXPECT_FALSE(run(before, [this, byKey] {
            press(QDialogButtonBox::Reset);
            act("boldBox");
            typeCss(u"p {}"_s);
            byKey ? QTest::keyClick(find<QWidget>("cssEdit"), Qt::Key_Escape)
                  : press(QDialogButtonBox::Cancel);
        }));
        EXPECT_EQ(editor.getCSS(), before);
        EXPECT_EQ(preview.constLast(), QList<QVariant>({before, true}));
    }
}

TEST_F(StyleEditor, ReadsTypedTextAfterAPauseAndTheListFollows)
{
    QSignalSpy changed(&editor, qOverload<const QString &>(&TextStyleEditor::currentStyleChanged));
    const QString css = u"p { content: \"a\u00a0b\" }\r\n"_s;
    EXPECT_TRUE(run(css, [&] {
        auto *fault = find<QLabel>("faultLabel");
        typeCss(u"q {"_s);
        EXPECT_EQ(changed.count(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return changed.count() == 1; }, 2000));
        EXPECT_EQ(find<QListWidget>("styleList")->count(), 2);
        EXPECT_EQ(fault->text(), u"Line 2 of the style sheet: this brace is not closed."_s);
        QTest::keyClick(find<QWidget>("cssEdit"), Qt::Key_Return);
        QTest::keyClicks(find<QWidget>("cssEdit"), u"}"_s);
        find<QTabWidget>("tabs")->setCurrentIndex(0);
        EXPECT_EQ(changed.count(), 2);
        EXPECT_TRUE(fault->text().isEmpty());
        typeCss(u"/* end */"_s); // and OK at once
    }));
    EXPECT_EQ(editor.getCSS(), css + u"q {\r\n}/* end */"_s);
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(StyleEditor, AcceptsWhatWasTypedOnEnter)
{
    EXPECT_EQ(after({},
                    [this] {
                        act("sizeSpin=9\n");
                        EXPECT_FALSE(editor.isVisible());
                    }),
              u"font-size: 9pt;"_s);
}

TEST_F(StyleEditor, LeadsShortcutsToTheirFields)
{
    EXPECT_TRUE(run(defaultSheet(), [this] {
        const std::pair<char, const char *> shortcuts[] = {
            {'F', "familyCombo"},      {'Z', "sizeSpin"},
            {'H', "alignCombo"},       {'T', "colorField/chooseButton"},
            {'W', "borderWidthSpin"},  {'K', "backgroundField/chooseButton"},
            {'N', "borderStyleCombo"}, {'R', "borderColorField/chooseButton"},
            {'Y', "styleList"}};
        for (const auto &[key, name] : shortcuts) {
            QTest::keyClick(&editor, Qt::Key(key), Qt::AltModifier);
            EXPECT_TRUE(find<QWidget>(name)->hasFocus()) << name;
        }
    }));
}

TEST_F(StyleEditor, NamesEveryControlForScreenReaders)
{
    for (QWidget *widget : editor.findChildren<QWidget *>()) {
        const QWidget *parent = widget->parentWidget();
        const bool inner = parent->inherits("QTabBar") || parent->inherits("QLineEdit");
        if (!inner && (widget->inherits("QAbstractSpinBox") || widget->inherits("QComboBox") ||
                       widget->inherits("QToolButton") || widget->inherits("QPlainTextEdit"))) {
            EXPECT_FALSE(widget->accessibleName().isEmpty() || widget->objectName().isEmpty())
                << widget->objectName();
        }
    }
}

} // namespace
