// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/accessiblepane.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char *paneProperty = "isAccessiblePane";

QAccessibleInterface *paneFor(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && widget->property(paneProperty).toBool()
               ? new QAccessibleWidget(widget, QAccessible::Pane)
               : nullptr;
}

} // namespace

void makeAccessiblePane(QWidget *widget)
{
    // Once for the process; installing it again would change nothing.
    QAccessible::installFactory(paneFor);
    widget->setProperty(paneProperty, true);
}
