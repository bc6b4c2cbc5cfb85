// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/templatecommand.h"

#include "account/sentences.h"
#include "cli/console.h"
#include "cli/designarguments.h"
#include "cli/opendesign.h"
#include "cli/outputfile.h"
#include "cli/templatechoice.h"
#include "cli/texts.h"
#include "fitting/fittedtemplate.h"
#include "host/propdefs/propdefsfile.h"
#include "standalone/environment.h"
#include "templates/bomtemplatefile.h"
#include "templates/legacytemplate.h"
#include "templates/oldhtmltemplate.h"
#include "templates/templatepaths.h"
#include "templates/templatestore.h"

#include <CLI/Validators.hpp>

#include <QDir>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace {

QString quoted(const QString &text)
{
    return u'"' + printable(text) + u'"';
}

QString line(const QString &label, const QString &text)
{
    return label + QStringLiteral(": ") + text + u'\n';
}

QString yesNo(bool isSet)
{
    return isSet ? CommandLine::tr("yes") : CommandLine::tr("no");
}

QString columnText(const BOMField &field)
{
    QStringList parts;
    if (!field.prefix.isEmpty()) {
        parts << CommandLine::tr("prefix %1").arg(quoted(field.prefix));
    }
    if (!field.suffix.isEmpty()) {
        parts << CommandLine::tr("suffix %1").arg(quoted(field.suffix));
    }
    if (field.applyToEmpty) {
        parts << CommandLine::tr("on empty values too");
    }
    if (field.generateTotals) {
        parts << oneOrMany(field.precision, CommandLine::tr("totals with %1 decimal"),
                           CommandLine::tr("totals with %1 decimals"))
                     .arg(field.precision);
    }
    if (field.enableLinks) {
        parts << CommandLine::tr("links");
    }
    if (field.fieldWidth > 0) {
        parts << oneOrMany(field.fieldWidth, CommandLine::tr("at most %1 character"),
                           CommandLine::tr("at most %1 characters"))
                     .arg(field.fieldWidth);
    }
    parts.prepend(printable(field.propertyName));
    return parts.join(QStringLiteral(", "));
}

QString categoryText(const BOMCategory &category)
{
    return category.isMiscCategory ? CommandLine::tr("all other parts")
                                   : printable(category.references.join(QStringLiteral(", ")));
}

QString htmlText(const BOMTemplate &settings)
{
    QString text =
        line(CommandLine::tr("Style sheet"),
             settings.css() == defaultStyleSheet() ? CommandLine::tr("default") : CommandLine::tr("its own"));
    const std::pair<QString, QString> fragments[] = {
        {CommandLine::tr("Document header"), settings.documentHeader()},
        {CommandLine::tr("Document footer"), settings.documentFooter()},
        {CommandLine::tr("Page header"), settings.pageHeader()},
        {CommandLine::tr("Page footer"), settings.pageFooter()}};
    for (const auto &[label, fragment] : fragments) {
        if (!fragment.isEmpty()) {
            text += line(label, printable(fragment));
        }
    }
    return text;
}

QString optionsText(const BOMTemplate &settings)
{
    return line(CommandLine::tr("References"), settings.groupReferences()
                                                   ? CommandLine::tr("shortened (R1-R7)")
                                                   : CommandLine::tr("individual (R1,R2...)")) +
           line(CommandLine::tr("Suppress empty categories"), yesNo(settings.suppressEmptyCategories())) +
           line(CommandLine::tr("Case sensitive part grouping"), yesNo(settings.caseSensitiveGrouping())) +
           line(CommandLine::tr("Append notes"), yesNo(settings.appendNotes())) +
           line(CommandLine::tr("Manual table column widths"), yesNo(settings.manualPrettyLayout())) +
           line(CommandLine::tr("Always quote references (CSV only)"), yesNo(settings.alwaysQuoteRefs())) +
           line(CommandLine::tr("Exclude value field (data outputs)"), yesNo(settings.excludeValueField())) +
           (settings.layoutForReading() ? line(CommandLine::tr("Layout for reading"), yesNo(true))
                                        : QString());
}

QString placeText(const BOMTemplate &settings)
{
    const QString path = settings.filePath();
    if (isShippedTemplateFile(path)) {
        return CommandLine::tr("comes with the program");
    }
    return QFile::exists(path) ? printable(QDir::toNativeSeparators(path)) : CommandLine::tr("none yet");
}

/// The settings for people to read: columns, categories, options; one a line.
QString templateListing(const BOMTemplate &settings)
{
    QString text = line(CommandLine::tr("Template"), printable(settings.name())) +
                   line(CommandLine::tr("File"), placeText(settings)) + CommandLine::tr("Columns:") + u'\n';
    for (const BOMField &field : settings.fields().fields()) {
        text += QStringLiteral("  ") + line(printable(field.fieldName), columnText(field));
    }
    text += CommandLine::tr("Categories:") + u'\n';
    for (const BOMCategory &category : settings.categories()) {
        text += QStringLiteral("  ") + line(printable(category.heading), categoryText(category));
    }
    return text + optionsText(settings) + htmlText(settings);
}

} // namespace

void TemplateCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("template",
                                   QT_TRANSLATE_NOOP("Help", "List, show, make and delete report templates"));
    m_app->require_subcommand(1);
    addAction("list", QT_TRANSLATE_NOOP("Help", "List all templates"), &TemplateCommand::list);
    addName(*addAction("show", QT_TRANSLATE_NOOP("Help", "Print the settings of a template"),
                       &TemplateCommand::show),
            QT_TRANSLATE_NOOP("Help", "Template, or a .bomt file"));
    CLI::App *create =
        addAction("new", QT_TRANSLATE_NOOP("Help", "Make a template"), &TemplateCommand::create);
    addName(*create, QT_TRANSLATE_NOOP("Help", "Name of the new template"));
    CLI::Option *from =
        create
            ->add_option("--from", m_from,
                         QT_TRANSLATE_NOOP(
                             "Help", "Take the settings of this template or .bomt file, not the defaults"))
            ->type_name("NAME|FILE")
            ->check(CLI::Validator(isGiven, ""));
    create
        ->add_option("--for", m_for,
                     QT_TRANSLATE_NOOP(
                         "Help", "Take the settings that a report of this design has without a template"))
        ->type_name("DESIGN")
        ->check(CLI::Validator(isGiven, ""))
        ->excludes(from);
    addName(*addAction("delete", QT_TRANSLATE_NOOP("Help", "Delete a template of your own"),
                       &TemplateCommand::remove),
            QT_TRANSLATE_NOOP("Help", "Template"));
    addAction("reset", QT_TRANSLATE_NOOP("Help", "Put the template \"Default\" back to the default settings"),
              &TemplateCommand::reset);
    addFile(*addAction("import", QT_TRANSLATE_NOOP("Help", "Take a .bomt file into your templates"),
                       &TemplateCommand::importFile),
            QT_TRANSLATE_NOOP("Help", "The file; its name becomes the template's"));
    CLI::App *legacy =
        addAction("import-legacy", QT_TRANSLATE_NOOP("Help", "Make a template of a legacy BOM script"),
                  &TemplateCommand::importLegacy);
    addFile(*legacy, QT_TRANSLATE_NOOP("Help", "The file with the script, usually .BSF"));
    legacy
        ->add_option("--script", m_script,
                     QT_TRANSLATE_NOOP("Help", "Which script, where the file has several"))
        ->type_name("NAME");
    legacy
        ->add_option("--name", m_name,
                     QT_TRANSLATE_NOOP("Help", "Name of the new template, not the script's"))
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""));
    CLI::App *exportFile = addAction("export", QT_TRANSLATE_NOOP("Help", "Copy a template to a file"),
                                     &TemplateCommand::exportFile);
    addName(*exportFile, QT_TRANSLATE_NOOP("Help", "Template"));
    addFile(*exportFile, QT_TRANSLATE_NOOP("Help", "Where to; - is standard output"));
}

CLI::App *TemplateCommand::addAction(const char *name, const char *description,
                                     ExitStatus (TemplateCommand::*action)(TemplateStore &))
{
    CLI::App *app = m_app->add_subcommand(name, description);
    app->callback([this, action] { m_action = action; });
    return app;
}

void TemplateCommand::addName(CLI::App &action, const char *description)
{
    action.add_option("NAME", m_name, description)->required()->check(CLI::Validator(isGiven, ""));
}

void TemplateCommand::addFile(CLI::App &action, const char *description)
{
    action.add_option("FILE", m_file, description)->required()->check(CLI::Validator(isGiven, ""));
}

ExitStatus TemplateCommand::run()
{
    const CliUi ui(QLocale::c());
    TemplateStore store;
    return (this->*m_action)(store);
}

QString TemplateCommand::listedName(const TemplateStore &store) const
{
    const QString wanted = QString::fromStdString(m_name);
    const QString name = store.templates().listedName(wanted);
    if (name.isEmpty()) {
        reportUnknownTemplate(wanted, store.templates());
    }
    return name;
}

ExitStatus TemplateCommand::list(TemplateStore &store)
{
    store.reload();
    QString text;
    for (const QString &name : store.templates().names()) {
        text += printable(name);
        if (store.templates().isShipped(name)) {
            text += u'\t' + CommandLine::tr("comes with the program");
        }
        text += u'\n';
    }
    return console::write(text.toUtf8()) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}

ExitStatus TemplateCommand::show(TemplateStore &)
{
    auto settings = readTemplate(QString::fromStdString(m_name));
    if (!settings) {
        return ExitStatus::UnreadableInput;
    }
    (void)upgradeTemplate(*settings);
    return console::write(templateListing(*settings).toUtf8()) ? ExitStatus::Done
                                                               : ExitStatus::UnwritableOutput;
}

std::optional<BOMTemplate> TemplateCommand::beginning() const
{
    if (m_for.empty()) {
        return m_from.empty() ? std::optional(BOMTemplate()) : readTemplate(QString::fromStdString(m_from));
    }
    DesignSession session;
    if (openSession(session, QString::fromStdString(m_for), {}) != ExitStatus::Done) {
        return std::nullopt;
    }
    QString problem;
    const auto fitted = fittedTemplate(*session.design(), &problem);
    if (!fitted) {
        console::message(problem);
        return std::nullopt;
    }
    console::notices(QStringList(fitted->reason) + fitted->notices);
    return fitted->settings;
}

ExitStatus TemplateCommand::create(TemplateStore &store)
{
    const QString name = QString::fromStdString(m_name).trimmed();
    auto settings = beginning();
    if (!settings) {
        return ExitStatus::UnreadableInput;
    }
    store.reload();
    const bool isRefused = !store.creationProblem(name).isEmpty();
    settings->setName(name);
    if (store.add(*settings)) {
        return ExitStatus::Done;
    }
    return isRefused ? ExitStatus::DesignProblem : ExitStatus::UnwritableOutput;
}

ExitStatus TemplateCommand::remove(TemplateStore &store)
{
    store.reload();
    const QString name = listedName(store);
    if (name.isEmpty()) {
        return ExitStatus::UnreadableInput;
    }
    if (store.remove(name)) {
        return ExitStatus::Done;
    }
    return store.canDelete(name) ? ExitStatus::UnwritableOutput : ExitStatus::DesignProblem;
}

ExitStatus TemplateCommand::reset(TemplateStore &store)
{
    store.reload();
    const bool isRefused = store.templates().stored(TemplateList::defaultName()).isOfLaterVersion();
    if (store.restoreDefault()) {
        return ExitStatus::Done;
    }
    return isRefused ? ExitStatus::DesignProblem : ExitStatus::UnwritableOutput;
}

ExitStatus TemplateCommand::importFile(TemplateStore &store)
{
    const QString path = QString::fromStdString(m_file);
    QString problem;
    if (!BOMTemplateFile(path).readXmlFile(&problem)) {
        console::message(problem);
        return ExitStatus::UnreadableInput;
    }
    store.reload();
    const QString name = QFileInfo(path).completeBaseName();
    const bool isRefused = store.templates().contains(name) || !isTemplateFileName(name);
    if (store.importFile(path)) {
        return ExitStatus::Done;
    }
    return isRefused ? ExitStatus::DesignProblem : ExitStatus::UnwritableOutput;
}

ExitStatus TemplateCommand::importLegacy(TemplateStore &store)
{
    QStringList problems;
    const std::optional<LegacyScript> found =
        readLegacyScript(QString::fromStdString(m_file), QString::fromStdString(m_script), &problems);
    for (const QString &problem : std::as_const(problems)) {
        found ? console::notice(problem) : console::message(problem);
    }
    if (!found) {
        return ExitStatus::UnreadableInput;
    }
    store.reload();
    BOMTemplate made = legacyTemplate(*found);
    made.setName(m_name.empty() ? proposedTemplateName(found->name, store.templates())
                                : QString::fromStdString(m_name).trimmed());
    const bool isRefused = !store.creationProblem(made.name()).isEmpty();
    if (!store.add(made)) {
        return isRefused ? ExitStatus::DesignProblem : ExitStatus::UnwritableOutput;
    }
    setpropdefsfile(userDefinitionsFile());
    const QStringList undefined = undefinedProperties(made);
    if (!undefined.isEmpty()) {
        console::notice(
            CommandLine::tr("properties without a definition: %1").arg(undefined.join(QLatin1String(", "))));
    }
    return console::write(made.name().toUtf8() + '\n') ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}

ExitStatus TemplateCommand::exportFile(TemplateStore &store)
{
    store.reload();
    const QString name = listedName(store);
    if (name.isEmpty()) {
        return ExitStatus::UnreadableInput;
    }
    QString reason;
    const auto content = store.templates().document(name, &reason);
    if (BOMTemplate settings = store.templates().stored(name);
        content && upgradeTemplate(settings) && !console::isQuiet()) {
        showTemplateUpgraded(nullptr, name);
    }
    if (!content) {
        console::message(store.templates().stored(name).filePath() + QStringLiteral(": ") + reason);
        return ExitStatus::UnreadableInput;
    }
    return writeOutput(QString::fromStdString(m_file), *content) ? ExitStatus::Done
                                                                 : ExitStatus::UnwritableOutput;
}
