// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportcommand.h"

#include "account/billaccount.h"
#include "account/design/designaccount.h"
#include "account/fieldnotices.h"
#include "account/reportnotices.h"
#include "account/sentences.h"
#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/outputfile.h"
#include "cli/terminal.h"
#include "cli/texts.h"
#include "host/framework/hostui.h"
#include "standalone/designguard.h"
#include "standalone/loadeddesign.h"
#include "templates/oldhtmltemplate.h"
#include "views/pdfreport.h"
#include "views/report/csvreport.h"
#include "views/report/htmlreport.h"
#include "views/report/jsonreport.h"
#include "views/report/report.h"
#include "views/report/spreadsheetreport.h"
#include "views/report/templatemarkup.h"
#include "views/report/terminalreport.h"

#include <QFileInfo>
#include <QFont>
#include <QRawFont>

#include <algorithm>

namespace {

/// Without any, Qt draws the same box for each character.
bool hasFonts()
{
    const QList<quint32> glyphs = QRawFont::fromFont(QFont()).glyphIndexesForString(QStringLiteral("Ab"));
    return glyphs.value(0) != glyphs.value(1);
}

} // namespace

const std::array<ReportCommand::OutputOption, 7> ReportCommand::outputOptions{{
    {"--csv", QT_TRANSLATE_NOOP("Help", "Write CSV with one row per line of the bill; - is standard output"),
     Form::Csv, "csv"},
    {"--full-csv", QT_TRANSLATE_NOOP("Help", "Write CSV with one row per part; - is standard output"),
     Form::FullCsv, ""},
    {"--ascii", QT_TRANSLATE_NOOP("Help", "Write text in columns of fixed widths; - is standard output"),
     Form::Ascii, "txt"},
    {"--html", QT_TRANSLATE_NOOP("Help", "Write a web page (XHTML); - is standard output"), Form::Html,
     "html"},
    {"--pdf", QT_TRANSLATE_NOOP("Help", "Write a PDF document; - is standard output"), Form::Pdf, "pdf"},
    {"--xlsx", QT_TRANSLATE_NOOP("Help", "Write a spreadsheet (.xlsx); - is standard output"), Form::Xlsx,
     "xlsx"},
    {"--json", QT_TRANSLATE_NOOP("Help", "Write JSON for programs; - is standard output"), Form::Json,
     "json"},
}};

void ReportCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "report", QT_TRANSLATE_NOOP("Help", "Write the bill of materials; text in columns goes to standard "
                                            "output when no output is named"));
    m_design.addTo(*m_app);
    m_design.addColumns(*m_app);
    m_app
        ->add_option(
            "-o,--output", m_outputs,
            QT_TRANSLATE_NOOP(
                "Help", "Write the form that the file's ending says: .csv, .html, .json, .pdf, .txt, .xlsx"))
        ->type_name("F")
        ->allow_extra_args(false);
    for (size_t i = 0; i < outputOptions.size(); ++i) {
        m_app->add_option(outputOptions[i].name, m_paths[i], outputOptions[i].description)->type_name("F");
    }
    m_services.addTo(*m_app);
    m_app->add_flag(
        "--excel-csv", m_isForSpreadsheets,
        QT_TRANSLATE_NOOP(
            "Help",
            "Write CSV as spreadsheet programs open it by a double click: with a byte order mark, and "
            "semicolons where --locale has a decimal comma"));
    m_app->add_flag("--allow-duplicates", m_allowDuplicates,
                    QT_TRANSLATE_NOOP("Help", "Write the report although references occur more than once"));
    m_locale.addTo(
        *m_app, QT_TRANSLATE_NOOP("Help", "Format numbers as in this locale, such as de_DE; C without it"));
}

bool ReportCommand::paints() const
{
    const QList<Output> outputs = this->outputs();
    return std::any_of(outputs.begin(), outputs.end(),
                       [](const Output &output) { return output.form == Form::Pdf; });
}

ExitStatus ReportCommand::run()
{
    const auto locale = m_locale.locale();
    if (!locale) {
        return ExitStatus::WrongUsage;
    }
    const QList<Output> outputs = this->outputs();
    if (!haveForms() || !areDistinct(pathsOf(outputs))) {
        return ExitStatus::WrongUsage;
    }
    const bool hasCsv = std::any_of(outputs.cbegin(), outputs.cend(), [](const Output &output) {
        return output.form == Form::Csv || output.form == Form::FullCsv;
    });
    if (m_isForSpreadsheets && !hasCsv) {
        console::message(
            CommandLine::tr("--excel-csv needs an output of CSV (bom report --help tells more)"));
        return ExitStatus::WrongUsage;
    }
    if (const ExitStatus status = m_services.prepare(m_design.dnpChoice()); status != ExitStatus::Done) {
        return status;
    }
    OpenDesign design(*locale);
    if (const ExitStatus status = design.open(m_design, true); status != ExitStatus::Done) {
        return status;
    }
    if (!protectDesignFiles(design, pathsOf(outputs))) {
        return ExitStatus::WrongUsage;
    }
    const ComponentAccount components = componentAccountOf(design.design());
    if (!shouldContinue(design, components)) {
        return ExitStatus::DesignProblem;
    }
    printNotices(design, components, outputs);
    const ExitStatus written = write(design, outputs);
    const ExitStatus writtenForServices = m_services.write(design);
    return written == ExitStatus::Done ? writtenForServices : written;
}

void ReportCommand::printNotices(OpenDesign &design, const ComponentAccount &components,
                                 const QList<Output> &outputs)
{
    const QStringList asked = m_services.properties();
    QList<FieldReading> readings = billReadings(design.design(), design.database(), asked);
    QStringList ofTemplate;
    if (outputs.isEmpty()) {
        // Files for services do not go by the template.
        readings.removeIf([&asked](const FieldReading &reading) {
            return !asked.contains(reading.asked, Qt::CaseInsensitive);
        });
    } else {
        m_joined = billJoinedLines(design.design(), design.database());
        if (!design.templateReason().isEmpty()) {
            console::notice(design.templateReason());
        }
        console::notices(design.fittingNotices());
        ofTemplate = joinedLineNotices(m_joined) + emptyColumnNotices(design.design(), design.database());
    }
    console::notices(otherNameNotices(readings) + disagreementNotices(readings) +
                     unheededNotFittedNotices(design.design()) + ofTemplate +
                     reportNotices(components, design.database(), formsOf(outputs)) +
                     missingNotes(design, outputs));
}

QList<ReportCommand::Output> ReportCommand::outputs() const
{
    QList<Output> outputs;
    for (const std::string &path : m_outputs) {
        if (const OutputOption *option = optionOf(QString::fromStdString(path))) {
            outputs.append({QString::fromStdString(path), option->form});
        }
    }
    for (size_t i = 0; i < outputOptions.size(); ++i) {
        if (m_app->count(outputOptions[i].name) > 0) {
            outputs.append({QString::fromStdString(m_paths[i]), outputOptions[i].form});
        }
    }
    if (outputs.isEmpty() && m_services.isEmpty()) {
        outputs.append({QStringLiteral("-"), Form::Ascii});
    }
    return outputs;
}

const ReportCommand::OutputOption *ReportCommand::optionOf(const QString &path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const auto found =
        std::find_if(outputOptions.begin(), outputOptions.end(), [&ending](const OutputOption &option) {
            return !ending.isEmpty() && ending == QLatin1String(option.ending);
        });
    return found == outputOptions.end() ? nullptr : &*found;
}

bool ReportCommand::haveForms() const
{
    for (const std::string &text : m_outputs) {
        const QString path = QString::fromStdString(text);
        if (path.isEmpty()) {
            console::message(CommandLine::tr("an output needs a file name"));
            return false;
        }
        if (!optionOf(path)) {
            console::message(
                path + QStringLiteral(": ") +
                CommandLine::tr("the ending says no form of a report; -o takes .csv, .html, .json, .pdf, "
                                ".txt and .xlsx, other names need --csv or its like"));
            return false;
        }
    }
    return true;
}

QStringList ReportCommand::pathsOf(const QList<Output> &outputs) const
{
    QStringList paths;
    for (const Output &output : outputs) {
        paths << output.path;
    }
    return paths + m_services.paths();
}

bool ReportCommand::areDistinct(const QStringList &outputs)
{
    QStringList taken;
    for (const QString &output : outputs) {
        if (output.isEmpty()) {
            console::message(CommandLine::tr("an output needs a file name"));
            return false;
        }
        for (const QString &path : std::as_const(taken)) {
            if (isSameFile(output, path)) {
                console::message(output + QStringLiteral(": ") +
                                 CommandLine::tr("two outputs cannot go to the same file"));
                return false;
            }
        }
        taken.append(output);
    }
    return true;
}

bool ReportCommand::protectDesignFiles(OpenDesign &design, const QStringList &outputs) const
{
    QStringList inputs = m_services.descriptions();
    inputs << m_design.path() << design.database().currentTemplate().filePath();
    for (const QString &output : outputs) {
        const bool isInput = std::any_of(inputs.cbegin(), inputs.cend(), [&output](const QString &input) {
            return isSameFile(output, input);
        });
        if (isInput || (!isStandardOutput(output) && belongsToDesign(design.session(), output))) {
            console::message(output + QStringLiteral(": ") +
                             CommandLine::tr("belongs to the design and is not overwritten"));
            return false;
        }
    }
    return true;
}

bool ReportCommand::shouldContinue(OpenDesign &design, const ComponentAccount &components) const
{
    const bool isAllowed = m_allowDuplicates || design.database().duplicateReferences().isEmpty();
    qsizetype count = 0;
    for (const RepeatedReference &repeated : components.repeated) {
        count += repeated.listed > 1 ? 1 : 0;
        if (repeated.isDoubtful()) {
            isAllowed ? console::notice(repeated.message()) : console::message(repeated.message());
        }
    }
    if (isAllowed) {
        return true;
    }
    const QStringList bomParts = repeatedBomParts(design.database());
    count += bomParts.size();
    if (!bomParts.isEmpty()) {
        console::message(CommandLine::tr("references of BOM-only parts and of other parts: %1")
                             .arg(referenceText(bomParts)));
    }
    console::message(oneOrMany(count,
                               CommandLine::tr("nothing was written: %1 reference occurs more than once "
                                               "(--allow-duplicates lists the first of each)"),
                               CommandLine::tr("nothing was written: %1 references occur more than once "
                                               "(--allow-duplicates lists the first of each)"))
                         .arg(count));
    return false;
}

ReportForms ReportCommand::formsOf(const QList<Output> &outputs)
{
    ReportForms forms{false, false};
    for (const Output &output : outputs) {
        (output.form == Form::FullCsv ? forms.hasParts : forms.hasLines) = true;
    }
    return forms;
}

QStringList ReportCommand::missingNotes(OpenDesign &design, const QList<Output> &outputs)
{
    const auto hasForm = [&outputs](Form form) {
        return std::any_of(outputs.cbegin(), outputs.cend(),
                           [form](const Output &output) { return output.form == form; });
    };
    QStringList problems;
    if (hasForm(Form::Html) || hasForm(Form::Pdf) || hasForm(Form::Xlsx)) {
        problems.append(design.session().document().notesProblem());
    }
    if (hasForm(Form::Pdf) && design.database().currentTemplate().appendNotes()) {
        problems.append(design.session().projectNotes().problem());
    }
    problems.removeAll(QString());
    for (QString &problem : problems) {
        problem = CommandLine::tr("%1; the report is without these notes").arg(problem);
    }
    return problems;
}

QByteArray ReportCommand::columns(const Output &output, const Report &report)
{
    const auto terminal = isStandardOutput(output.path) ? outputTerminal() : std::nullopt;
    return terminal ? terminalReport(report, *terminal) : textReport(report);
}

ReportCommand::Content ReportCommand::content(const Output &output, BOMPartsDatabase &database) const
{
    const Form form = output.form;
    if (form == Form::Html || form == Form::Pdf) {
        return documentContent(form, database);
    }
    const BOMTemplate &settings = database.currentTemplate();
    const Report report(database, dataFields(database.columns(), settings));
    if (form == Form::Ascii) {
        return {columns(output, report)};
    }
    if (form == Form::Json) {
        return {jsonReport(report, m_joined)};
    }
    if (form == Form::Xlsx) {
        const SpreadsheetReport made = spreadsheetReport(report);
        return {made.file, made.problem, made.notices};
    }
    return {csvReport(report, form == Form::FullCsv ? CsvRows::Parts : CsvRows::Lines,
                      m_isForSpreadsheets ? spreadsheetDialect(HostUi::current().locale()) : CsvDialect())};
}

ReportCommand::Content ReportCommand::documentContent(Form form, BOMPartsDatabase &database)
{
    if (form == Form::Pdf && !hasFonts()) {
        return {{}, CommandLine::tr("no fonts are installed")};
    }
    BOMTemplate settings = database.currentTemplate();
    if (upgradeTemplate(settings)) {
        database.setTemplateLook(settings);
        if (!console::isQuiet()) {
            showTemplateUpgraded(nullptr, settings.name());
        }
    }
    const Report report(database, database.columns());
    return {form == Form::Pdf ? pdfReport(report) : htmlReport(report).toUtf8(),
            {},
            templateMarkup(report.settings()).notices};
}

ExitStatus ReportCommand::write(OpenDesign &design, const QList<Output> &outputs) const
{
    ExitStatus status = ExitStatus::Done;
    for (const Output &output : outputs) {
        const Content content = this->content(output, design.database());
        if (!content.problem.isEmpty()) {
            console::message(CommandLine::tr("%1: is not written: %2").arg(output.path, content.problem));
            status = ExitStatus::UnwritableOutput;
            continue;
        }
        for (const QString &notice : content.notices) {
            console::notice(output.path + QStringLiteral(": ") + notice);
        }
        if (!writeOutput(output.path, content.bytes)) {
            status = ExitStatus::UnwritableOutput;
        }
    }
    return status;
}
