// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/opendesign.h"

#include "cli/console.h"
#include "cli/templatechoice.h"
#include "host/netlist/netlist.h"
#include "host/propdefs/propdefsfile.h"
#include "richtext/paper/pagepainter.h"
#include "standalone/environment.h"
#include "templates/templatelist.h"

#include <QCoreApplication>
#include <QFileInfo>

ExitStatus OpenDesign::open(const DesignArguments &arguments, bool printsWarnings)
{
    if (!loadDefinitions(QString::fromStdString(arguments.propdefs))) {
        return ExitStatus::UnreadableInput;
    }
    const auto settings =
        readTemplate(arguments.templateName.empty() ? TemplateList::defaultName()
                                                    : QString::fromStdString(arguments.templateName));
    if (!settings) {
        return ExitStatus::UnreadableInput;
    }
    m_session.setDnpChoice(arguments.dnpChoice());
    if (!m_session.open(arguments.path(), arguments.openOptions())) {
        for (const QString &error : m_session.errors()) {
            console::message(error);
        }
        return ExitStatus::UnreadableInput;
    }
    if (printsWarnings) {
        for (const QString &warning : m_session.warnings()) {
            console::message(warning);
        }
    }
    m_session.projectNotes().setPagePainter([](QPainter &painter, const QString &text) {
        (void)paintTextPages(painter, QCoreApplication::translate("ProjectNotes", "Project Notes"), text);
    });
    fillDatabase(*settings);
    for (const QString &repair : m_database.templateRepairs()) {
        console::message(settings->filePath() + QStringLiteral(": ") + repair);
    }
    return ExitStatus::Done;
}

bool OpenDesign::loadDefinitions(const QString &path)
{
    setpropdefsfile(path.isEmpty() ? userDefinitionsFile() : path);
    if (!path.isEmpty() && !QFileInfo::exists(path)) {
        console::message(path + QStringLiteral(": there is no such file"));
        return false;
    }
    QStringList problems;
    const bool isLoaded = load_defaultdefs(nullptr, nullptr, &problems);
    for (const QString &problem : std::as_const(problems)) {
        console::message(problem);
    }
    return isLoaded;
}

void OpenDesign::fillDatabase(const BOMTemplate &settings)
{
    m_cache.setsource(&m_session.netlist());
    m_cache.validate(1);
    m_database.setNetlist(&m_cache);
    m_database.setCurrentTemplate(settings);
    m_database.reload();
}
