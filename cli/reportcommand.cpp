// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportcommand.h"

#include "cli/bomjsonview.h"
#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/outputfile.h"
#include "cli/referencetext.h"
#include "cli/reportnotices.h"
#include "host/propdefs/propdefsfile.h"
#include "views/bomasciiview.h"
#include "views/bomcsvview.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"

#include <QFileInfo>
#include <QFont>
#include <QRawFont>

#include <algorithm>

namespace {

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

const std::array<ReportCommand::OutputOption, 7> &ReportCommand::outputOptions()
{
    static const std::array<OutputOption, 7> options{{
        {"--csv", "Write CSV with one row per line of the bill; - is standard output", Form::Csv,
         &ReportCommand::m_csv},
        {"--full-csv", "Write CSV with one row per part; - is standard output", Form::FullCsv,
         &ReportCommand::m_fullCsv},
        {"--ascii", "Write text in columns of fixed widths; - is standard output", Form::Ascii,
         &ReportCommand::m_ascii},
        {"--html", "Write a web page (XHTML); - is standard output", Form::Html, &ReportCommand::m_html},
        {"--pdf", "Write a PDF document; - is standard output", Form::Pdf, &ReportCommand::m_pdf},
        {"--xlsx", "Write a spreadsheet (.xlsx); - is standard output", Form::Xlsx, &ReportCommand::m_xlsx},
        {"--json", "Write JSON for programs; - is standard output", Form::Json, &ReportCommand::m_json},
    }};
    return options;
}

void ReportCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("report", "Write the bill of materials; text in columns goes to standard "
                                             "output when no output is named");
    m_design.addTo(*m_app);
    for (const OutputOption &option : outputOptions()) {
        m_app->add_option(option.name, this->*option.path, option.description)->type_name("F");
    }
    m_app->add_flag("--allow-duplicates", m_allowDuplicates,
                    "Write the report although references occur more than once");
    m_locale.addTo(*m_app, "Format numbers as in this locale, such as de_DE; C without it");
}

ExitStatus ReportCommand::run()
{
    const auto locale = m_locale.locale();
    if (!locale) {
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
    tellMissingNotes(design, outputs);
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
        outputs.append({QStringLiteral("-"), Form::Ascii});
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
    QStringList bomParts = design.database().bomOnlyParts().duplicates();
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

void ReportCommand::tellMissingNotes(OpenDesign &design, const QList<Output> &outputs)
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
    for (const QString &problem : std::as_const(problems)) {
        console::message(problem + QStringLiteral("; the report is without these notes"));
    }
}

QByteArray ReportCommand::content(Form form, BOMPartsDatabase &database)
{
    if (form == Form::Csv || form == Form::FullCsv) {
        BOMCsvView view(nullptr, form == Form::FullCsv);
        view.setPartsDatabase(&database);
        return view.csv();
    }
    if (form == Form::Ascii) {
        BOMAsciiView view;
        view.setPartsDatabase(&database);
        return view.ascii();
    }
    if (form == Form::Json) {
        BOMJsonView view;
        view.setPartsDatabase(&database);
        return view.json();
    }
    BOMHTMLView view;
    view.setPartsDatabase(&database);
    return form == Form::Pdf ? view.pdf() : view.html().toUtf8();
}

bool ReportCommand::writeSpreadsheet(const QString &path, BOMPartsDatabase &database)
{
    BOMExcelView view;
    view.setPartsDatabase(&database);
    const QByteArray file = view.xlsx();
    if (!view.problem().isEmpty()) {
        console::message(path + QStringLiteral(": is not written: ") + view.problem());
        return false;
    }
    for (const QString &notice : view.notices()) {
        console::message(path + QStringLiteral(": ") + notice);
    }
    return writeOutput(path, file);
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
        const bool isWritten = output.form == Form::Xlsx
                                   ? writeSpreadsheet(output.path, design.database())
                                   : writeOutput(output.path, content(output.form, design.database()));
        if (!isWritten) {
            status = ExitStatus::UnwritableOutput;
        }
    }
    return status;
}
