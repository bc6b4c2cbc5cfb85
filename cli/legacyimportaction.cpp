// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/legacyimportaction.h"

#include "cli/console.h"
#include "host/propdefs/propdefsfile.h"
#include "standalone/environment.h"
#include "templates/legacytemplate.h"
#include "templates/templatestore.h"

ExitStatus importLegacyScript(TemplateStore &store, const QString &path, const QString &script,
                              const QString &name)
{
    QStringList problems;
    const std::optional<LegacyScript> found = readLegacyScript(path, script, &problems);
    for (const QString &problem : std::as_const(problems)) {
        console::message(problem);
    }
    if (!found) {
        return ExitStatus::UnreadableInput;
    }
    store.reload();
    BOMTemplate made = legacyTemplate(*found);
    made.setName(name.isEmpty() ? proposedTemplateName(found->name, store) : name.trimmed());
    if (!store.mayCreate(made.name())) {
        return ExitStatus::DesignProblem;
    }
    if (!store.add(made)) {
        return ExitStatus::UnwritableOutput;
    }
    setpropdefsfile(userDefinitionsFile());
    const QStringList undefined = undefinedProperties(made);
    if (!undefined.isEmpty()) {
        console::message(QStringLiteral("properties without a definition: ") +
                         undefined.join(QLatin1String(", ")));
    }
    return console::write(made.name().toUtf8() + '\n') ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
