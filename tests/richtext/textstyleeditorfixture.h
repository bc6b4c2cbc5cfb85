// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/editor/textstyleeditor.h"

#include "richtext/css/stylesheet.h"
#include "richtext/sheettext.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
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
