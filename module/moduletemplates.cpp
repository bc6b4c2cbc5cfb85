// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/moduletemplates.h"

#include "core/bompartsdatabase.h"
#include "host/framework/applnprocess.h"
#include "host/framework/hostui.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QCoreApplication>
#include <QWidget>

#include <utility>

ModuleTemplates::ModuleTemplates(const APPLNPROCESS *process, BOMPartsDatabase &database)
    : m_database(database)
    , m_store(this)
{
    if (process) {
        setTemplatePaths(hostTemplatePaths(process->gettemplatepaths(), process->getdatapath("Templates")));
    }
    setTemplateMessageHandler([this](const TemplateMessage &message) {
        const QString detail = message.detail.isEmpty() ? QString() : u'\n' + message.detail;
        HostUi::current().warning(m_window, message.title, message.text + detail);
    });
}

ModuleTemplates::~ModuleTemplates()
{
    setTemplateMessageHandler({});
}

void ModuleTemplates::show(QWidget *window)
{
    setDialogParent(window);
    if (!std::exchange(m_isLoaded, true)) {
        m_store.reload();
    }
}

void ModuleTemplates::setDialogParent(QWidget *window)
{
    m_window = window;
    m_store.setDialogParent(window);
}

void ModuleTemplates::refresh()
{
    if (m_isLoaded) {
        m_store.followFiles();
    }
}

BOMTemplate ModuleTemplates::workingTemplate() const
{
    return m_database.currentTemplate();
}

void ModuleTemplates::takeTemplate(const BOMTemplate &settings, const std::function<void()> &announce)
{
    {
        const BOMPartsDatabase::BulkChange change(&m_database);
        m_database.setCurrentTemplate(settings);
        announce();
    }
    const QStringList &repairs = m_database.templateRepairs();
    if (!repairs.isEmpty()) {
        showTemplateMessage({QCoreApplication::translate("ModuleTemplates", "Incomplete BOM Template"),
                             settings.filePath(), repairs.join(u'\n')});
    }
}
