// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/undefinedproperties.h"

#include "host/propdefs/propdefsfile.h"
#include "templates/bomtemplate.h"

namespace {

bool isBuiltIn(const QString &property)
{
    return property.startsWith(u'.') || property.compare(QLatin1String("VALUE"), Qt::CaseInsensitive) == 0;
}

} // namespace

QStringList undefinedProperties(const BOMTemplate &settings)
{
    DIDX known;
    if (!load_defaultdefs(&known, nullptr)) {
        return {};
    }
    QStringList undefined;
    for (const BOMField &field : settings.fields().fields()) {
        const QString &name = field.propertyName;
        // What was met counts as known from then on.
        if (!name.isEmpty() && !isBuiltIn(name) && known.add({name, PropType::String, {}})) {
            undefined.append(name);
        }
    }
    return undefined;
}
