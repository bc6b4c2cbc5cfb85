// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/serviceoutputs.h"

#include "account/sentences.h"
#include "cli/console.h"
#include "cli/nearnames.h"
#include "cli/opendesign.h"
#include "cli/outputfile.h"
#include "cli/texts.h"
#include "standalone/buyerfields.h"
#include "standalone/servicefiles.h"
#include "views/report/servicebill.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// The references, shortened; of many the first ones.
QString firstReferences(const QStringList &references)
{
    constexpr qsizetype mostReferences = 60;
    return referenceText(references.mid(0, mostReferences)) +
           (references.size() > mostReferences ? QStringLiteral(",...") : QString());
}

/// The file that a name of the command line stands for; empty, after a message, when there is none.
QString fileOf(const QString &name)
{
    if (name.contains(u'/') || name.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) {
        return name;
    }
    const QString path = serviceFile(name);
    if (path.isEmpty()) {
        const QStringList known = serviceNames();
        console::message(CommandLine::tr("there is no assembly service \"%1\"%2 (known: %3)")
                             .arg(name, didYouMean(name, known), known.join(QStringLiteral(", "))));
    }
    return path;
}

/// The properties that tell parts apart: the design's numbers and ratings, and the commonest numbers where
/// names are taken as they are.
QStringList propertiesApart(const LoadedDesign &design)
{
    const TellingProperties telling = tellingProperties(design);
    QStringList names = telling.always + telling.whereFilled;
    names << QStringLiteral("MPN") << QStringLiteral("SUPPLIER PART NUMBER") << QStringLiteral("LCSC");
    names.removeDuplicates();
    return names;
}

} // namespace

void ServiceOutputs::addTo(CLI::App &command)
{
    command
        .add_option(
            "--for", m_given,
            QT_TRANSLATE_NOOP(
                "Help",
                "Write the file that an assembly service takes, .csv or .xlsx by its ending; - is CSV on "
                "standard output"))
        ->type_name("SERVICE F")
        ->allow_extra_args(false);
}

QStringList ServiceOutputs::paths() const
{
    QStringList paths;
    for (const auto &[name, path] : m_given) {
        paths << QString::fromStdString(path);
    }
    return paths;
}

QStringList ServiceOutputs::descriptions() const
{
    QStringList files;
    for (const Output &output : m_outputs) {
        files << output.description;
    }
    return files;
}

ExitStatus ServiceOutputs::prepare(DnpChoice choice)
{
    if (!isEmpty() && choice == DnpChoice::Only) {
        console::message(CommandLine::tr(
            "--for leaves out parts that are not fitted, and --dnp only leaves out all others"));
        return ExitStatus::WrongUsage;
    }
    for (const auto &[name, path] : m_given) {
        Output output{QString::fromStdString(name), QString::fromStdString(path), false, {}, {}};
        const QString ending = QFileInfo(output.path).suffix().toLower();
        output.isSpreadsheet = ending == QLatin1String("xlsx");
        if (!output.isSpreadsheet && ending != QLatin1String("csv") && !isStandardOutput(output.path)) {
            console::message(output.path + QStringLiteral(": ") +
                             CommandLine::tr("--for writes .csv and .xlsx, and CSV to standard output (-)"));
            return ExitStatus::WrongUsage;
        }
        if (const ExitStatus status = readService(&output); status != ExitStatus::Done) {
            return status;
        }
        m_outputs << output;
    }
    return ExitStatus::Done;
}

ExitStatus ServiceOutputs::readService(Output *output)
{
    const QString file = fileOf(output->name);
    output->description = file;
    if (file.isEmpty()) {
        return ExitStatus::UnreadableInput;
    }
    QString problem;
    if (const auto text = serviceText(file, &problem)) {
        const ReadService read = readAssemblyService(*text, file);
        output->service = read.service;
        problem = read.problem;
    }
    if (!problem.isEmpty()) {
        console::message(problem);
        return ExitStatus::UnreadableInput;
    }
    return ExitStatus::Done;
}

QStringList ServiceOutputs::properties() const
{
    QStringList names;
    for (const Output &output : m_outputs) {
        names += output.service.properties();
    }
    names.removeDuplicates();
    return names;
}

ExitStatus ServiceOutputs::write(OpenDesign &design) const
{
    const QStringList apart = m_outputs.isEmpty() ? QStringList() : propertiesApart(design.design());
    ExitStatus status = ExitStatus::Done;
    for (const Output &output : m_outputs) {
        const ServiceBill bill = serviceBill(design.database(), output.service, apart);
        const bool wasReported = std::any_of(m_outputs.begin(), m_outputs.end(), [&](const Output &other) {
            return &other < &output && other.service == output.service;
        });
        if (!wasReported) {
            reportDoubts(output, bill);
        }
        if (!write(output, bill)) {
            status = ExitStatus::UnwritableOutput;
        }
    }
    return status;
}

void ServiceOutputs::reportDoubts(const Output &output, const ServiceBill &bill)
{
    const AssemblyService &service = output.service;
    const QString title = service.title.isEmpty() ? output.name : service.title;
    if (!bill.withoutNumber.isEmpty()) {
        const qsizetype count = bill.withoutNumber.size();
        const auto &column = service.columns.at(*service.needed);
        console::notice(oneOrMany(count, CommandLine::tr("%1: %2 part has no \"%3\" (%4): %5"),
                                  CommandLine::tr("%1: %2 parts have no \"%3\" (%4): %5"))
                            .arg(title, QString::number(count), column.heading, column.text,
                                 firstReferences(bill.withoutNumber)));
    }
    QStringList doubts;
    for (const QStringList &clash : bill.clashes) {
        doubts << CommandLine::tr("%1 are one designator there, where letter case does not count")
                      .arg(clash.join(CommandLine::tr(" and ")));
    }
    for (const ServiceBill::AlikeRows &rows : bill.alike) {
        doubts << CommandLine::tr("the rows of %1 and %2 look alike; their parts differ in %3")
                      .arg(rows.reference, rows.other, rows.property);
    }
    constexpr qsizetype mostDoubts = 5;
    for (const QString &doubt : doubts.mid(0, mostDoubts)) {
        console::notice(title + QStringLiteral(": ") + doubt);
    }
    if (doubts.size() > mostDoubts) {
        console::notice(CommandLine::tr("%1: %2 more rows or designators like these")
                            .arg(title, QString::number(doubts.size() - mostDoubts)));
    }
}

bool ServiceOutputs::write(const Output &output, const ServiceBill &bill)
{
    if (!output.isSpreadsheet) {
        return writeOutput(output.path, serviceCsv(bill));
    }
    const SpreadsheetReport made = serviceSpreadsheet(bill);
    if (!made.problem.isEmpty()) {
        console::message(CommandLine::tr("%1: is not written: %2").arg(output.path, made.problem));
        return false;
    }
    return writeOutput(output.path, made.file);
}
