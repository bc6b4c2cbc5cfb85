// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/fittedfolder.h"

#include "fitting/fittedtemplate.h"
#include "host/framework/hostsettings.h"
#include "standalone/environment.h"
#include "templates/templatelist.h"

#include <QFile>
#include <QFileInfo>

QString FittedFolder::write(const LoadedDesign &design)
{
    QString problem;
    const QString file = m_folder.filePath(fittedTemplateName() + QStringLiteral(".bomt"));
    auto fitted = fittedTemplate(design, &problem);
    if (!fitted) {
        QFile::remove(file);
        return problem;
    }
    fitted->settings.setFilePath(file);
    fitted->settings.setVersion(BOMTemplate::CurrentVersion);
    if (path().isEmpty()) {
        return m_folder.errorString();
    }
    // A template that cannot be saved says why itself.
    return fitted->settings.save() ? QString() : file;
}

void FittedFolder::proposeToUser()
{
    HostSettings &settings = HostSettings::current();
    const QString group = QStringLiteral("BOM");
    const QString key = QStringLiteral("CurrentTemplate");
    const QString own = userTemplatesFolder() + u'/' + TemplateList::defaultName() + QStringLiteral(".bomt");
    if (!settings.value(group, key) && !QFileInfo::exists(own)) {
        settings.setValue(group, key, fittedTemplateName());
    }
}
