// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/templatechoice.h"

#include "cli/console.h"
#include "cli/nearnames.h"
#include "cli/texts.h"
#include "standalone/environment.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"
#include "templates/templatestore.h"

#include <QFileInfo>

#include <algorithm>

namespace {

bool isFileName(const QString &text)
{
    return text.contains(u'/') || text.endsWith(QStringLiteral(".bomt"), Qt::CaseInsensitive);
}

std::optional<BOMTemplate> readFile(const QString &path)
{
    QString problem;
    auto settings = BOMTemplate::fromFile(path, &problem);
    if (!settings) {
        console::message(problem);
    } else if (settings->isOfLaterVersion()) {
        showTemplateMessage(settings->laterVersionMessage());
    }
    return settings;
}

/// The path of the template's file; empty when it has none.
QString fileOf(const QString &name)
{
    const QList<TemplateFile> files = templateFiles();
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const auto found = std::find_if(files.cbegin(), files.cend(), [&](const TemplateFile &file) {
            return file.name.compare(name, sensitivity) == 0;
        });
        if (found != files.cend()) {
            return found->path;
        }
    }
    return {};
}

} // namespace

void prepareTemplates()
{
    setTemplatePaths({userTemplatesFolder(), shippedTemplateFolder()});
    setTemplateMessageHandler([](const TemplateMessage &message) {
        console::message(message.detail.isEmpty() ? message.text : message.detail);
    });
}

bool hasOwnDefaultTemplate()
{
    if (QFileInfo::exists(legacyTemplatesFile())) {
        TemplateStore store;
        store.reload();
        if (store.templates().stored(TemplateList::defaultName()).legacySettings()) {
            return true;
        }
    }
    return !fileOf(TemplateList::defaultName()).isEmpty();
}

void reportUnknownTemplate(const QString &name, const TemplateList &templates)
{
    console::message(CommandLine::tr("there is no template \"%1\"%2 (bom template list names them)")
                         .arg(name, didYouMean(name, templates.names())));
}

std::optional<BOMTemplate> readTemplate(const QString &nameOrFile)
{
    if (isFileName(nameOrFile)) {
        return readFile(nameOrFile);
    }
    if (const QString path = fileOf(nameOrFile); !path.isEmpty()) {
        return readFile(path);
    }
    const bool isDefault = nameOrFile.compare(TemplateList::defaultName(), Qt::CaseInsensitive) == 0;
    if (isDefault && !QFileInfo::exists(legacyTemplatesFile())) {
        BOMTemplate settings;
        settings.setName(TemplateList::defaultName());
        return settings;
    }
    TemplateStore store;
    store.reload();
    const QString name = store.templates().listedName(nameOrFile);
    if (name.isEmpty()) {
        reportUnknownTemplate(nameOrFile, store.templates());
        return std::nullopt;
    }
    BOMTemplate settings = store.templates().stored(name);
    settings.setLegacySettings(nullptr); // it goes with the store
    return settings;
}
