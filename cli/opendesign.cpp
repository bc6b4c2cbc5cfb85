// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/opendesign.h"

#include "cli/console.h"
#include "cli/designpath.h"
#include "cli/nearnames.h"
#include "cli/progressline.h"
#include "cli/templatechoice.h"
#include "host/netlist/netlist.h"
#include "host/propdefs/propdefsfile.h"
#include "richtext/paper/pagepainter.h"
#include "standalone/environment.h"
#include "templates/templatelist.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace {

/// What may be meant by a variant that the design does not have; empty where nothing is near, or the design
/// cannot be read without it either.
QString variantHint(DesignSession &session, const QString &path, OpenOptions options)
{
    const QString wanted = std::exchange(options.variant, {});
    return !wanted.isEmpty() && session.open(path, options) ? didYouMean(wanted, session.variants())
                                                            : QString();
}

} // namespace

ExitStatus openSession(DesignSession &session, const QString &named, const OpenOptions &options)
{
    const auto path = designPath(named);
    if (!path) {
        return ExitStatus::WrongUsage;
    }
    if (QFileInfo(*path).isDir()) {
        console::message(*path + QStringLiteral(": this folder has no design in it (a .kicad_sch, .kicad_pro "
                                                "or .csv file)"));
        return ExitStatus::UnreadableInput;
    }
    const bool isOpen = [&] {
        const ProgressLine progress(QStringLiteral("reading ") + *path);
        return session.open(*path, options);
    }();
    QStringList errors = session.errors();
    if (isOpen) {
        return ExitStatus::Done;
    }
    errors.last() += variantHint(session, *path, options);
    for (const QString &error : std::as_const(errors)) {
        console::message(error);
    }
    return ExitStatus::UnreadableInput;
}

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
    m_session.setExactNames(arguments.hasExactNames);
    if (const ExitStatus status = openSession(m_session, arguments.path(), arguments.openOptions());
        status != ExitStatus::Done) {
        return status;
    }
    if (printsWarnings) {
        console::notices(m_session.warnings());
    }
    m_session.projectNotes().setPagePainter([](QPainter &painter, const QString &text) {
        (void)paintTextPages(painter, QCoreApplication::translate("ProjectNotes", "Project Notes"), text);
    });
    fillDatabase(*settings);
    for (const QString &repair : m_database.templateRepairs()) {
        console::notice(settings->filePath() + QStringLiteral(": ") + repair);
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
        isLoaded ? console::notice(problem) : console::message(problem);
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
