// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/templatecommand.h"

#include "account/sentences.h"
#include "cli/console.h"
#include "cli/designarguments.h"
#include "cli/opendesign.h"
#include "cli/outputfile.h"
#include "cli/templatechoice.h"
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
    return isSet ? QStringLiteral("yes") : QStringLiteral("no");
}

QString columnText(const BOMField &field)
{
    QStringList parts;
    if (!field.prefix.isEmpty()) {
        parts << QStringLiteral("prefix ") + quoted(field.prefix);
    }
    if (!field.suffix.isEmpty()) {
        parts << QStringLiteral("suffix ") + quoted(field.suffix);
    }
    if (field.applyToEmpty) {
        parts << QStringLiteral("on empty values too");
    }
    if (field.generateTotals) {
        parts << QStringLiteral("totals with ") +
                     counted(field.precision, QStringLiteral("decimal"), QStringLiteral("decimals"));
    }
    if (field.enableLinks) {
        parts << QStringLiteral("links");
    }
    if (field.fieldWidth > 0) {
        parts << QStringLiteral("at most ") +
                     counted(field.fieldWidth, QStringLiteral("character"), QStringLiteral("characters"));
    }
    parts.prepend(printable(field.propertyName));
    return parts.join(QStringLiteral(", "));
}

QString categoryText(const BOMCategory &category)
{
    return category.isMiscCategory ? QStringLiteral("all other parts")
                                   : printable(category.references.join(QStringLiteral(", ")));
}

QString htmlText(const BOMTemplate &settings)
{
    QString text =
        line(QStringLiteral("Style sheet"),
             settings.css() == defaultStyleSheet() ? QStringLiteral("default") : QStringLiteral("its own"));
    const std::pair<QString, QString> fragments[] = {
        {QStringLiteral("Document header"), settings.documentHeader()},
        {QStringLiteral("Document footer"), settings.documentFooter()},
        {QStringLiteral("Page header"), settings.pageHeader()},
        {QStringLiteral("Page footer"), settings.pageFooter()}};
    for (const auto &[label, fragment] : fragments) {
        if (!fragment.isEmpty()) {
            text += line(label, printable(fragment));
        }
    }
    return text;
}

QString optionsText(const BOMTemplate &settings)
{
    return line(QStringLiteral("References"), settings.groupReferences()
                                                  ? QStringLiteral("shortened (R1-R7)")
                                                  : QStringLiteral("individual (R1,R2...)")) +
           line(QStringLiteral("Suppress empty categories"), yesNo(settings.suppressEmptyCategories())) +
           line(QStringLiteral("Case sensitive part grouping"), yesNo(settings.caseSensitiveGrouping())) +
           line(QStringLiteral("Append notes"), yesNo(settings.appendNotes())) +
           line(QStringLiteral("Manual table column widths"), yesNo(settings.manualPrettyLayout())) +
           line(QStringLiteral("Always quote references (CSV only)"), yesNo(settings.alwaysQuoteRefs())) +
           line(QStringLiteral("Exclude value field (data outputs)"), yesNo(settings.excludeValueField())) +
           (settings.layoutForReading() ? line(QStringLiteral("Layout for reading"), yesNo(true))
                                        : QString());
}

QString placeText(const BOMTemplate &settings)
{
    const QString path = settings.filePath();
    if (isShippedTemplateFile(path)) {
        return QStringLiteral("comes with the program");
    }
    return QFile::exists(path) ? printable(QDir::toNativeSeparators(path)) : QStringLiteral("none yet");
}

/// The settings for people to read: columns, categories, options; one a line.
QString templateListing(const BOMTemplate &settings)
{
    QString text = line(QStringLiteral("Template"), printable(settings.name())) +
                   line(QStringLiteral("File"), placeText(settings)) + QStringLiteral("Columns:\n");
    for (const BOMField &field : settings.fields().fields()) {
        text += QStringLiteral("  ") + line(printable(field.fieldName), columnText(field));
    }
    text += QStringLiteral("Categories:\n");
    for (const BOMCategory &category : settings.categories()) {
        text += QStringLiteral("  ") + line(printable(category.heading), categoryText(category));
    }
    return text + optionsText(settings) + htmlText(settings);
}

} // namespace

void TemplateCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("template", "List, show, make and delete report templates");
    m_app->require_subcommand(1);
    addAction("list", "List all templates", &TemplateCommand::list);
    addName(*addAction("show", "Print the settings of a template", &TemplateCommand::show),
            "Template, or a .bomt file");
    CLI::App *create = addAction("new", "Make a template", &TemplateCommand::create);
    addName(*create, "Name of the new template");
    CLI::Option *from = create
                            ->add_option("--from", m_from,
                                         "Take the settings of this template or .bomt file, not the defaults")
                            ->type_name("NAME|FILE")
                            ->check(CLI::Validator(isGiven, ""));
    create
        ->add_option("--for", m_for, "Take the settings that a report of this design has without a template")
        ->type_name("DESIGN")
        ->check(CLI::Validator(isGiven, ""))
        ->excludes(from);
    addName(*addAction("delete", "Delete a template of your own", &TemplateCommand::remove), "Template");
    addAction("reset", "Put the template \"Default\" back to the default settings", &TemplateCommand::reset);
    addFile(*addAction("import", "Take a .bomt file into your templates", &TemplateCommand::importFile),
            "The file; its name becomes the template's");
    CLI::App *legacy =
        addAction("import-legacy", "Make a template of a legacy BOM script", &TemplateCommand::importLegacy);
    addFile(*legacy, "The file with the script, usually .BSF");
    legacy->add_option("--script", m_script, "Which script, where the file has several")->type_name("NAME");
    legacy->add_option("--name", m_name, "Name of the new template, not the script's")
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""));
    CLI::App *exportFile = addAction("export", "Copy a template to a file", &TemplateCommand::exportFile);
    addName(*exportFile, "Template");
    addFile(*exportFile, "Where to; - is standard output");
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
        text += printable(name) + (store.templates().isShipped(name)
                                       ? QStringLiteral("\tcomes with the program\n")
                                       : QStringLiteral("\n"));
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
        console::notice(QStringLiteral("properties without a definition: ") +
                        undefined.join(QLatin1String(", ")));
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
