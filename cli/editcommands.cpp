// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/editcommands.h"

#include "cli/console.h"
#include "cli/designedits.h"
#include "cli/edittable.h"
#include "cli/kicadtable.h"
#include "cli/newproperties.h"
#include "cli/opendesign.h"
#include "cli/spreadsheettable.h"
#include "cli/texts.h"
#include "core/propertyassignments.h"
#include "standalone/referencereader.h"
#include "standalone/tablefile.h"

#include <CLI/Validators.hpp>

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// People edit the sheet that they see first. Its edits are not lost in silence where another sheet is read.
void refuseFurtherEdits(const DesignEdits &others, const QString &where, DesignEdits &edits)
{
    using Edit = std::pair<QString, QString>;
    const auto folded = [](const Edit &edit) { return Edit(edit.first, edit.second.toUpper()); };
    QSet<Edit> known;
    for (const Edit &edit : edits.edited()) {
        known.insert(folded(edit));
    }
    QList<Edit> further = others.edited();
    further.removeIf([&](const Edit &edit) { return known.contains(folded(edit)); });
    if (!further.isEmpty()) {
        const Edit first = *std::min_element(further.begin(), further.end());
        edits.refuse(
            CommandLine::tr("%1 has changes that \"Parts\" does not have, such as %2, %3 (--sheet says "
                            "which of the sheets counts)")
                .arg(where, first.first, first.second));
    }
}

} // namespace

void WriteArguments::addTo(CLI::App &command)
{
    command.add_flag("--dry-run", isDryRun,
                     QT_TRANSLATE_NOOP("Help", "Check everything and tell what would change; write nothing"));
    command.add_flag(
        "--no-backup", hasNoBackup,
        QT_TRANSLATE_NOOP("Help", "Keep no copy of the files as they are before; bom undo needs one"));
    design.addReading(command);
    design.addListing(command);
    design.addNames(command);
    locale.addTo(command,
                 QT_TRANSLATE_NOOP("Help", "Read numbers as in this locale, such as de_DE; C without it"));
}

WriteOptions WriteArguments::options() const
{
    return {.isDryRun = isDryRun, .keepsBackups = !hasNoBackup, .rereads = false};
}

void SetCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "set", QT_TRANSLATE_NOOP("Help", "Give properties of parts new values in the design"));
    m_arguments.design.addDesign(*m_app);
    m_app->add_option("REF", m_references, QT_TRANSLATE_NOOP("Help", "References, such as R1 or R1,R4-R7"))
        ->required()
        ->check(CLI::Validator(isGiven, ""));
    m_app
        ->add_option("NAME=VALUE", m_assignments,
                     QT_TRANSLATE_NOOP("Help", "Property with its new value; NAME= takes the property away"))
        ->required();
    m_app->add_flag(
        "--new", m_makesNew,
        QT_TRANSLATE_NOOP(
            "Help", "Make a property that the design does not have, although it has one of nearly the same "
                    "name"));
    m_arguments.addTo(*m_app);
}

ExitStatus SetCommand::run()
{
    const auto locale = m_arguments.locale.locale();
    const auto wanted = assignments();
    if (!locale || !wanted) {
        return ExitStatus::WrongUsage;
    }
    OpenDesign design(*locale);
    if (const ExitStatus status = design.open(m_arguments.design, true); status != ExitStatus::Done) {
        return status;
    }
    if (!areMeant(design, *wanted)) {
        return ExitStatus::WrongUsage;
    }
    DesignEdits edits(design);
    QString error;
    ReferenceReader reader([&edits](const QString &reference) { return edits.isKnown(reference); });
    if (!reader.read(QString::fromStdString(m_references), &error)) {
        edits.refuse(error);
    }
    for (const QString &reference : reader.references()) {
        if (!edits.isKnown(reference)) {
            edits.refuseUnknown(reference, {});
            continue;
        }
        for (const Assignment &assignment : *wanted) {
            edits.add(reference, assignment.property, assignment.value);
        }
    }
    return edits.write(m_arguments.options());
}

std::optional<QList<SetCommand::Assignment>> SetCommand::assignments() const
{
    QList<Assignment> found;
    for (const std::string &argument : m_assignments) {
        const QString text = QString::fromStdString(argument);
        const qsizetype sign = text.indexOf(u'=');
        if (sign <= 0) {
            console::message(
                CommandLine::tr("\"%1\" is no NAME=VALUE (bom set --help tells more)").arg(text));
            return std::nullopt;
        }
        const QString name = text.left(sign);
        const bool isNamed = std::any_of(found.cbegin(), found.cend(), [&name](const Assignment &other) {
            return other.property.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (isNamed) {
            console::message(CommandLine::tr("the property %1 is named twice").arg(name));
            return std::nullopt;
        }
        found.append({name, text.mid(sign + 1)});
    }
    return found;
}

bool SetCommand::areMeant(OpenDesign &design, const QList<Assignment> &wanted) const
{
    bool isMeant = true;
    for (const Assignment &assignment : wanted) {
        const QString &name = assignment.property;
        const bool isRemoved =
            assignment.value.isEmpty() || assignment.value == PropertyAssignments::removal();
        const bool isDefined = design.database().propertyTypes().type(name).has_value();
        if (m_makesNew || isRemoved || isDefined || !isNewProperty(design, name)) {
            continue;
        }
        if (const QStringList similar = similarProperties(design, name); !similar.isEmpty()) {
            console::message(
                CommandLine::tr("the design has no property \"%1\"; did you mean \"%2\"? (--new makes it)")
                    .arg(name, similar.join(CommandLine::tr("\" or \"", "between names"))));
            isMeant = false;
        }
    }
    return isMeant;
}

void ApplyCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "apply",
        QT_TRANSLATE_NOOP("Help", "Write the values that were changed in a report (.csv, .xlsx, .ods), "
                                  "or in any table with references, into the design"));
    m_arguments.design.addDesign(*m_app);
    m_app
        ->add_option("EDITS", m_edits,
                     QT_TRANSLATE_NOOP(
                         "Help",
                         "Table (.csv, .xlsx or .ods); its headings are fields of the template or names of "
                         "properties"))
        ->required()
        ->check(CLI::Validator(isGiven, ""));
    m_app
        ->add_option(
            "--sheet", m_sheet,
            QT_TRANSLATE_NOOP(
                "Help",
                "Read this sheet of a spreadsheet; without it \"Parts\", or the first that has references"))
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""));
    m_app->add_flag(
        "--add", m_addsProperties,
        QT_TRANSLATE_NOOP("Help",
                          "Take all columns for properties, also those of headings that no part has yet"));
    m_app
        ->add_option(
            "--new-property", m_newProperties,
            QT_TRANSLATE_NOOP("Help",
                              "Take the column of this heading for a property although no part has it yet"))
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""))
        ->allow_extra_args(false);
    m_app->add_flag(
        "--accept-spreadsheet-changes", m_acceptsSpreadsheetChanges,
        QT_TRANSLATE_NOOP(
            "Help",
            "Write also what spreadsheets make of texts by themselves: 0402 to 402, 1-2 to a date, the "
            "results of formulas"));
    m_arguments.addTo(*m_app);
    m_arguments.design.addColumns(*m_app);
}

ExitStatus ApplyCommand::run()
{
    const auto locale = m_arguments.locale.locale();
    if (!locale) {
        return ExitStatus::WrongUsage;
    }
    const bool isSpreadsheet = isSpreadsheetFile(QString::fromStdString(m_edits));
    if (!m_sheet.empty() && !isSpreadsheet) {
        console::message(CommandLine::tr("--sheet needs a spreadsheet (.xlsx or .ods)"));
        return ExitStatus::WrongUsage;
    }
    OpenDesign design(*locale);
    if (const ExitStatus status = design.open(m_arguments.design, true); status != ExitStatus::Done) {
        return status;
    }
    DesignEdits edits(design);
    if (const ExitStatus status = readEdits(design, edits, isSpreadsheet); status != ExitStatus::Done) {
        return status;
    }
    return edits.write(m_arguments.options());
}

ExitStatus ApplyCommand::readEdits(OpenDesign &design, DesignEdits &edits, bool isSpreadsheet) const
{
    const QString path = QString::fromStdString(m_edits);
    const QString sheetName = QString::fromStdString(m_sheet);
    HeadingOptions headings;
    headings.addsProperties = m_addsProperties;
    headings.kicad = KicadTable(design.design());
    for (const std::string &name : m_newProperties) {
        headings.newProperties << QString::fromStdString(name).trimmed();
    }
    const QStringList references =
        ReportCells(design).columnHeadings(true).mid(2, 1) + headings.kicad.referenceLabels();
    QString error;
    std::optional<SpreadsheetTable> sheet;
    std::optional<Table> table;
    if (isSpreadsheet) {
        sheet = readSpreadsheetTable(path, sheetName, references, &error);
        headings.isPartsSheet = sheet && isPartsSheet(sheet->sheet);
    } else {
        table = readTable(path, references, &error);
        if (table) {
            joinBillRows(*table, references.front());
        }
    }
    if (!sheet && !table) {
        console::message(error);
        return ExitStatus::UnreadableInput;
    }
    EditTable comparison(path, design, edits, {m_acceptsSpreadsheetChanges, headings});
    sheet ? comparison.compare(*sheet) : comparison.compare(*table);
    console::notices(comparison.notices());
    if (sheet && !sheet->otherSheet.isEmpty()) {
        QString unreadable;
        headings.isPartsSheet = false;
        if (const auto other = readSpreadsheetTable(path, sheet->otherSheet, references, &unreadable)) {
            DesignEdits otherEdits(design);
            EditTable(path, design, otherEdits, {m_acceptsSpreadsheetChanges, headings}).compare(*other);
            refuseFurtherEdits(otherEdits, CommandLine::tr("%1: the sheet \"%2\"").arg(path, other->sheet),
                               edits);
        }
    }
    return ExitStatus::Done;
}

void UndoCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "undo", QT_TRANSLATE_NOOP("Help", "Take back what was written into a design last"));
    DesignArguments::addPath(*m_app, m_design);
}

ExitStatus UndoCommand::run()
{
    const CliUi ui(QLocale::c());
    DesignSession session;
    if (const ExitStatus status = openSession(session, QString::fromStdString(m_design), {});
        status != ExitStatus::Done) {
        return status;
    }
    if (!session.canUndo()) {
        console::message(QString::fromStdString(m_design) + QStringLiteral(": ") +
                         CommandLine::tr("there is nothing to take back"));
        return ExitStatus::DesignProblem;
    }
    const UndoResult undone = session.undo({.rereads = false});
    for (const QString &problem : undone.problems) {
        console::message(problem);
    }
    console::notices(undone.notices);
    QString text;
    for (const QString &file : undone.files) {
        text += CommandLine::tr("%1 has its previous content again")
                    .arg(printable(console::withShownPaths(file))) +
                u'\n';
    }
    if (!console::write(text.toUtf8())) {
        console::message(
            CommandLine::tr("the files of the design have their previous content again all the same"));
        return ExitStatus::UnwritableOutput;
    }
    if (undone.problems.isEmpty()) {
        return ExitStatus::Done;
    }
    return undone.isUnwritable ? ExitStatus::UnwritableOutput : ExitStatus::DesignProblem;
}
