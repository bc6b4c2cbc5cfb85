// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportcommand.h"

#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/outputfile.h"
#include "cli/referencetext.h"
#include "cli/reportnotices.h"
#include "host/propdefs/propdefsfile.h"
#include "views/bomcsvview.h"
#include "views/bomhtmlview.h"

#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QRawFont>

#include <algorithm>
#include <optional>

namespace {

/// Nothing for a name that is no locale.
std::optional<QLocale> localeOf(const QString &name)
{
    const QLocale locale(name);
    if (name.isEmpty() || name == QStringLiteral("C") || name == QStringLiteral("POSIX")) {
        return QLocale::c();
    }
    return locale.language() == QLocale::C ? std::nullopt : std::optional(locale);
}

/// Whether there is a file of KiCad's of that name: a board or project beside the sheets is read as well.
bool isKicadFile(const QString &path)
{
    const QFileInfo file(path);
    const QFileInfo target(file.canonicalFilePath());
    const QLatin1String suffix("kicad_");
    return file.exists() && (file.suffix().startsWith(suffix) || target.suffix().startsWith(suffix));
}

void tell(const QStringList &notices)
{
    for (const QString &notice : notices) {
        console::message(notice);
    }
}

} // namespace

const std::array<ReportCommand::OutputOption, 4> &ReportCommand::outputOptions()
{
    static const std::array<OutputOption, 4> options{{
        {"--csv", "Write CSV with one row per line of the bill; - is standard output", Form::Csv,
         &ReportCommand::m_csv},
        {"--full-csv", "Write CSV with one row per part; - is standard output", Form::FullCsv,
         &ReportCommand::m_fullCsv},
        {"--html", "Write a web page (XHTML); - is standard output", Form::Html, &ReportCommand::m_html},
        {"--pdf", "Write a PDF document; - is standard output", Form::Pdf, &ReportCommand::m_pdf},
    }};
    return options;
}

void ReportCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("report", "Write the bill of materials; the CSV goes to standard output "
                                             "when no output is named");
    m_design.addTo(*m_app);
    for (const OutputOption &option : outputOptions()) {
        m_app->add_option(option.name, this->*option.path, option.description)->type_name("F");
    }
    m_app->add_flag("--allow-duplicates", m_allowDuplicates,
                    "Write the report although references occur more than once");
    m_app->add_option("--locale", m_locale, "Format numbers as in this locale, such as de_DE; C without it")
        ->type_name("NAME");
}

ExitStatus ReportCommand::run()
{
    const auto locale = localeOf(QString::fromStdString(m_locale));
    if (!locale) {
        constexpr qsizetype longestName = 40;
        console::message(QStringLiteral("unknown locale \"") +
                         QString::fromStdString(m_locale).left(longestName) + u'"');
        return ExitStatus::WrongUsage;
    }
    const QList<Output> outputs = this->outputs();
    if (!areDistinct(outputs)) {
        return ExitStatus::WrongUsage;
    }
    OpenDesign design(*locale);
    if (const ExitStatus status = design.open(m_design, true); status != ExitStatus::Done) {
        return status;
    }
    if (!spareTheDesign(design, outputs)) {
        return ExitStatus::WrongUsage;
    }
    if (!mayGoOn(design)) {
        return ExitStatus::DesignProblem;
    }
    tell(markNotices(design));
    tell(notFittedNotices(design));
    tell(definedPartNotices(design));
    tellReplacedLines(design, outputs);
    return write(design, outputs);
}

QList<ReportCommand::Output> ReportCommand::outputs() const
{
    QList<Output> outputs;
    for (const OutputOption &option : outputOptions()) {
        if (m_app->count(option.name) > 0) {
            outputs.append({QString::fromStdString(this->*option.path), option.form});
        }
    }
    if (outputs.isEmpty()) {
        outputs.append({QStringLiteral("-"), Form::Csv});
    }
    return outputs;
}

bool ReportCommand::areDistinct(const QList<Output> &outputs)
{
    QStringList taken;
    for (const Output &output : outputs) {
        if (output.path.isEmpty()) {
            console::message(QStringLiteral("an output needs a file name"));
            return false;
        }
        for (const QString &path : std::as_const(taken)) {
            if (isSameFile(output.path, path)) {
                console::message(output.path + QStringLiteral(": two outputs cannot go to the same file"));
                return false;
            }
        }
        taken.append(output.path);
    }
    return true;
}

bool ReportCommand::spareTheDesign(OpenDesign &design, const QList<Output> &outputs) const
{
    QStringList inputs = design.session().files();
    const StandaloneDocument &document = design.session().document();
    inputs << m_design.path() << document.notesFile() << document.projectNotesFile() << propdefsfile()
           << design.database().currentTemplate().filePath();
    for (const Output &output : outputs) {
        const bool isInput = std::any_of(inputs.cbegin(), inputs.cend(), [&output](const QString &input) {
            return isSameFile(output.path, input);
        });
        if (isInput || isKicadFile(output.path)) {
            console::message(output.path + QStringLiteral(": belongs to the design and is not overwritten"));
            return false;
        }
    }
    return true;
}

bool ReportCommand::mayGoOn(OpenDesign &design) const
{
    qsizetype count = 0;
    for (const RepeatedReference &repeated : design.ledger().repeated()) {
        count += repeated.listed > 1 ? 1 : 0;
        if (repeated.isDoubtful()) {
            console::message(repeated.message());
        }
    }
    if (m_allowDuplicates || design.database().duplicateReferences().isEmpty()) {
        return true;
    }
    QStringList bomParts = design.database().duplicateBOMParts();
    bomParts.removeDuplicates();
    count += bomParts.size();
    if (!bomParts.isEmpty()) {
        console::message(QStringLiteral("references of BOM-only parts and of other parts: ") +
                         referenceText(bomParts));
    }
    console::message(QStringLiteral("nothing was written: ") +
                     counted(count, QStringLiteral("reference occurs"), QStringLiteral("references occur")) +
                     QStringLiteral(" more than once (--allow-duplicates lists the first of each)"));
    return false;
}

void ReportCommand::tellReplacedLines(OpenDesign &design, const QList<Output> &outputs)
{
    const auto hasForm = [&outputs](bool isFull) {
        return std::any_of(outputs.cbegin(), outputs.cend(), [isFull](const Output &output) {
            return (output.form == Form::FullCsv) == isFull;
        });
    };
    for (const bool isFull : {false, true}) {
        if (hasForm(isFull)) {
            tell(replacedLineNotices(design, !isFull));
        }
    }
}

QByteArray ReportCommand::content(Form form, BOMPartsDatabase &database)
{
    if (form == Form::Csv || form == Form::FullCsv) {
        BOMCsvView view(nullptr, form == Form::FullCsv);
        view.setPartsDatabase(&database);
        return view.csv();
    }
    BOMHTMLView view;
    view.setPartsDatabase(&database);
    return form == Form::Pdf ? view.pdf() : view.html().toUtf8();
}

ExitStatus ReportCommand::write(OpenDesign &design, const QList<Output> &outputs) const
{
    ExitStatus status = ExitStatus::Done;
    for (const Output &output : outputs) {
        if (output.form == Form::Pdf && QRawFont::fromFont(QFont()).fontTable("cmap").isEmpty()) {
            console::message(output.path + QStringLiteral(": is not written: no fonts are installed"));
            status = ExitStatus::UnwritableOutput;
            continue;
        }
        if (!writeOutput(output.path, content(output.form, design.database()))) {
            status = ExitStatus::UnwritableOutput;
        }
    }
    return status;
}
