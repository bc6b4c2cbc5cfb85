// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/linkhandler.h"

#include "host/framework/applnprocess.h"

#include <QApplication>
#include <QStatusTipEvent>
#include <QWidget>

namespace {

NAVIGATION navigate(const QString &reference, quint64 identifier)
{
    APPLNPROCESS *process = getapplnprocess();
    IMODULE *module = process ? process->getmoduleinterface("ORIN", INTERFACE_NAVIGATOR) : nullptr;
    if (!module) {
        return {false,
                QApplication::translate("LinkHandler", "This program cannot show where parts are drawn")};
    }
    return static_cast<INAVIGATOR *>(module)->showpart(reference, identifier);
}

} // namespace

NAVIGATION LinkHandler::navigateLink(const QString &reference, quint64 identifier, QWidget *parent)
{
    const NAVIGATION came = navigate(reference, identifier);
    if (parent) {
        // Handed on from parent to parent, up to a main window, whose status line shows it.
        QStatusTipEvent event(came.text);
        QApplication::sendEvent(parent, &event);
    }
    return came;
}
