// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/applndialog.h"

#include "host/framework/hostui.h"

#include <QCloseEvent>
#include <QKeyEvent>

void APPLNDIALOG::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Cancel) || mayClose()) {
        QDialog::keyPressEvent(event);
    }
}

void APPLNDIALOG::closeEvent(QCloseEvent *event)
{
    if (mayClose()) {
        QDialog::closeEvent(event);
    } else {
        event->ignore();
    }
}

bool APPLNDIALOG::mayClose()
{
    return !hasTypedText() ||
           HostUi::current().question(this, windowTitle(), tr("Close without what you have typed?"), false);
}
