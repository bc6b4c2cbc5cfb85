// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/scriptedui.h"
#include "support/testfiles.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

using Messages = QList<ScriptedUi::Message>;

/// An open dialog, whose widgets are found by their names.
class DialogFixture : public testing::Test
{
protected:
    void open(QDialog &dialog)
    {
        m_dialog = &dialog;
        dialog.open();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    template<class Widget>
    Widget *child(const char *name) const
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    void click(const char *button) const { QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton); }
    void click(QDialogButtonBox::StandardButton button) const { press(*m_dialog, button); }
    static void press(const QWidget &dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
    }

    ScriptedUi ui;

private:
    QTemporaryDir m_folder;
    QDialog *m_dialog = nullptr;
};
