// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <utility>

/// Windows without a desktop do not become active by themselves when another one goes.
inline void makeActive(QWidget *window)
{
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
}

/// Runs `opens`, which opens a modal dialog, and with the open dialog `steps`. A dialog that they leave open
/// is cancelled; gives whether they did.
template<class Opens, class Steps>
bool inDialog(Opens opens, Steps steps)
{
    const QPointer<QWidget> before = QApplication::activeWindow();
    bool wasLeftOpen = false;
    bool wasOpened = false;
    QTimer::singleShot(0, qApp, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        wasOpened = dialog;
        if (dialog) {
            makeActive(dialog);
            steps(*dialog);
            wasLeftOpen = dialog->isVisible();
        }
        if (wasLeftOpen) {
            dialog->reject();
        }
    });
    opens();
    EXPECT_TRUE(wasOpened);
    if (before) {
        makeActive(before);
    }
    return wasLeftOpen;
}
