// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/textstyleeditorfixture.h"

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

TEST_F(TextStyleEditorTest, ShortcutsLeadToTheirFields)
{
    EXPECT_TRUE(run(defaultSheet(), [this] {
        const std::pair<Qt::Key, const char *> shortcuts[] = {{Qt::Key_F, "familyCombo"},
                                                              {Qt::Key_Z, "sizeSpin"},
                                                              {Qt::Key_T, "colorField/chooseButton"},
                                                              {Qt::Key_H, "alignCombo"},
                                                              {Qt::Key_W, "borderWidthSpin"},
                                                              {Qt::Key_K, "backgroundField/chooseButton"},
                                                              {Qt::Key_Y, "styleList"},
                                                              {Qt::Key_N, "borderStyleCombo"},
                                                              {Qt::Key_R, "borderColorField/chooseButton"}};
        for (const auto &[key, name] : shortcuts) {
            QTest::keyClick(&m_editor, key, Qt::AltModifier);
            auto *field = find<QWidget>(name);
            EXPECT_TRUE(field->hasFocus()) << name;
        }
    }));
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
