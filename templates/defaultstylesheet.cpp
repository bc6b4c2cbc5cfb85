// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/defaultstylesheet.h"

#include <QFile>

// A static library's resources are dropped by the linker unless something refers to them. The macro declares
// a function, which may not happen inside a namespace.
static bool registerResources()
{
    Q_INIT_RESOURCE(bom);
    return true;
}

QString defaultStyleSheet()
{
    [[maybe_unused]] static const bool registered = registerResources();
    QFile file(QStringLiteral(":/bom/html/userstyle.css"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
