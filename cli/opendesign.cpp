// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/opendesign.h"

#include "cli/console.h"
#include "cli/designpath.h"
#include "cli/nearnames.h"
#include "cli/progressline.h"
#include "cli/templatechoice.h"
#include "cli/texts.h"
#include "fitting/fittedtemplate.h"
#include "host/netlist/netlist.h"
#include "host/propdefs/propdefsfile.h"
#include "richtext/paper/pagepainter.h"
#include "standalone/environment.h"
#include "standalone/loadeddesign.h"
#include "templates/templatelist.h"
#include "templates/templatepaths.h"

#include <QFileInfo>

#include <algorithm>
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

/// Whether the template depends on the design: nobody named one, or has one of their own for every design.
bool isTemplateFitted(const DesignArguments &arguments)
{
    const bool hasColumns = !arguments.fields.empty() || !arguments.preset.empty();
    return hasColumns || (arguments.isFitted && arguments.templateName.empty() && !hasOwnDefaultTemplate());
}

QStringList commaSeparated(const std::string &text)
{
    return text.empty() ? QStringList() : QString::fromStdString(text).split(u',');
}

QString someOf(const QStringList &names)
{
    constexpr qsizetype mostNames = 20;
    return names.first(std::min(mostNames, names.size())).join(QStringLiteral(", ")) +
           (names.size() > mostNames ? QStringLiteral(", ...") : QString());
}

/// Whether each column that is asked for has a name, and no label is left over.
bool areColumnsNamed(const DesignArguments &arguments)
{
    const QStringList fields = commaSeparated(arguments.fields);
    const bool isBlank = std::any_of(fields.begin(), fields.end(),
                                     [](const QString &name) { return name.trimmed().isEmpty(); });
    if (isBlank) {
        console::message(CommandLine::tr("--fields: a name is missing between two commas"));
        return false;
    }
    if (commaSeparated(arguments.labels).size() > fields.size()) {
        console::message(CommandLine::tr("--labels: there are more labels than fields"));
        return false;
    }
    return true;
}

} // namespace

ExitStatus openSession(DesignSession &session, const QString &named, const OpenOptions &options)
{
    const auto path = designPath(named);
    if (!path) {
        return ExitStatus::WrongUsage;
    }
    if (QFileInfo(*path).isDir()) {
        console::message(
            CommandLine::tr("%1: this folder has no design in it (a .kicad_sch, .kicad_pro or .csv file)")
                .arg(*path));
        return ExitStatus::UnreadableInput;
    }
    const bool isOpen = [&] {
        const ProgressLine progress(CommandLine::tr("reading %1").arg(*path));
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
    if (!areColumnsNamed(arguments)) {
        return ExitStatus::WrongUsage;
    }
    const bool isFitted = isTemplateFitted(arguments);
    std::optional<BOMTemplate> settings;
    if (!isFitted && !(settings = readTemplate(arguments.templateName.empty()
                                                   ? TemplateList::defaultName()
                                                   : QString::fromStdString(arguments.templateName)))) {
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
    if (isFitted && !(settings = fitTemplate(arguments))) {
        return ExitStatus::UnreadableInput;
    }
    if (isShippedTemplateFile(settings->filePath())) {
        settings->setFields(withDecimalsOfParts(settings->fields(), design()));
    }
    m_session.projectNotes().setPagePainter([](QPainter &painter, const QString &text) {
        (void)paintTextPages(painter, QStringLiteral("Project Notes"), text);
    });
    fillDatabase(*settings);
    for (const QString &repair : m_database.templateRepairs()) {
        console::notice(settings->filePath() + QStringLiteral(": ") + repair);
    }
    return ExitStatus::Done;
}

std::optional<BOMTemplate> OpenDesign::fitTemplate(const DesignArguments &arguments)
{
    std::optional<FittedTemplate> fitted;
    QString problem;
    if (!arguments.fields.empty()) {
        fitted = columnTemplate(design(), commaSeparated(arguments.fields), commaSeparated(arguments.labels));
    } else if (!arguments.preset.empty()) {
        const QString name = QString::fromStdString(arguments.preset);
        const QStringList names = presetNames(design());
        fitted = presetTemplate(design(), name);
        problem = names.isEmpty()
                      ? CommandLine::tr("the project has no BOM preset \"%1\" (it has none)").arg(name)
                      : CommandLine::tr("the project has no BOM preset \"%1\"%2 (it has %3)")
                            .arg(name, didYouMean(name, names), someOf(names));
    } else {
        fitted = fittedTemplate(design(), &problem);
    }
    if (!fitted) {
        console::notices(design().design().projectBom().problems);
        console::message(problem);
        return std::nullopt;
    }
    m_fittingNotices = fitted->notices;
    if (arguments.fields.empty()) {
        m_templateReason = fitted->reason;
    }
    return fitted->settings;
}

bool OpenDesign::loadDefinitions(const QString &path)
{
    setpropdefsfile(path.isEmpty() ? userDefinitionsFile() : path);
    if (!path.isEmpty() && !QFileInfo::exists(path)) {
        console::message(path + QStringLiteral(": ") + CommandLine::tr("there is no such file"));
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
