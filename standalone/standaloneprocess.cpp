// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standaloneprocess.h"

#include "host/framework/applnmodule.h"
#include "host/framework/hosttext.h"
#include "host/framework/imodule.h"
#include "standalone/environment.h"
#include "standalone/standalonedocument.h"
#include "standalone/standalonenetlist.h"

#include <QCoreApplication>

#include <cstring>

StandaloneProcess::StandaloneProcess(StandaloneDocument &document, StandaloneNetlist &netlist)
    : m_document(document)
    , m_netlist(netlist)
    , m_projectNotes(document)
    , m_project(document)
{
}

APPLNDOCUMENT *StandaloneProcess::currentdocument(int kind, const char *name) const
{
    if (!m_isOpen || kind != DOCUMENT_KIND_DESIGN) {
        return nullptr;
    }
    if (name && fromHostText(name) != m_document.getinfo("FILENAME")) {
        return nullptr;
    }
    return &m_document;
}

APPLNOBJECT *StandaloneProcess::currentobject(const char *name, int kind)
{
    const bool isAsked = name && std::strcmp(name, "PROJNOTES") == 0 && kind == OBJECT_KIND_PROJECT_NOTES;
    return m_isOpen && isAsked && m_projectNotes.exist() ? &m_projectNotes : nullptr;
}

QString StandaloneProcess::getbinpath() const
{
    return QCoreApplication::applicationDirPath();
}

QString StandaloneProcess::getdatapath(const char *application) const
{
    const QString name = fromHostText(application);
    return name == QStringLiteral("Templates") ? userTemplatesFolder() : userDataFolder(name);
}

QString StandaloneProcess::gettemplatepaths() const
{
    return m_furtherTemplates.isEmpty() ? QString() : userTemplatesFolder() + u';' + m_furtherTemplates;
}

QString StandaloneProcess::gethelppath(const QString &application) const
{
    return application == QStringLiteral("BOM") ? getbinpath() + QStringLiteral("/../share/bom/guide")
                                                : QString();
}

IMODULE *StandaloneProcess::getmoduleinterface(const char *application, unsigned id)
{
    if (!application) {
        return m_project.queryinterface(id);
    }
    if (std::strcmp(application, "ORIN") == 0) {
        IMODULE *server = m_netlist.queryinterface(id);
        return server ? server : m_navigator.queryinterface(id);
    }
    APPLNMODULE *module = findmodule(application);
    return module ? module->queryinterface(id) : nullptr;
}

IMODULE *StandaloneProcess::Project::queryinterface(unsigned id)
{
    return id == INTERFACE_PROJECT ? this : nullptr;
}

APPLNDOCUMENT *StandaloneProcess::Project::getprojectdocument()
{
    return &m_document;
}

QToolBar *StandaloneProcess::Project::createctrlbar(APPLNWINDOW *)
{
    return m_makeBar ? m_makeBar() : nullptr;
}
