// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/legacyimport.h"

#include "templates/templatestore.h"

#include <QCoreApplication>

QString proposedTemplateName(const QString &scriptName, const TemplateStore &store)
{
    const QString name = scriptName.isEmpty()
                             ? QCoreApplication::translate("BOMTemplateImporter", "Imported Template")
                             : scriptName;
    return store.contains(name) ? name + QStringLiteral("-copy") : name;
}
