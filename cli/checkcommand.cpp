// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/checkcommand.h"

#include "account/designcheck.h"
#include "cli/console.h"
#include "cli/nearnames.h"
#include "cli/newproperties.h"
#include "cli/opendesign.h"
#include "cli/terminal.h"
#include "cli/texts.h"
#include "host/framework/userlanguage.h"
#include "views/report/jsonreport.h"
#include "views/report/jsonwriter.h"
#include "views/report/report.h"

#include <CLI/Validators.hpp>

#include <algorithm>
#include <memory>

namespace {

void append(QString *text, const QString &heading, const QStringList &lines)
{
    const auto terminal = outputTerminal();
    if (lines.isEmpty()) {
        return;
    }
    *text += u'\n' + emphasized(heading + u':', terminal && terminal->isColoured) + u'\n';
    for (const QString &line : lines) {
        *text += QStringLiteral("  ") + printable(console::withShownPaths(line)) + u'\n';
    }
}

/// The sums in two columns, then what is to decide and to know.
QString readableText(const DesignCheck &check)
{
    qsizetype width = 0;
    for (const DesignCheck::Sum &sum : check.sums) {
        width = std::max(width, printable(sum.name).size());
    }
    QString text;
    for (const DesignCheck::Sum &sum : check.sums) {
        text += printable(sum.name).leftJustified(width) + QStringLiteral("  ") + printable(sum.text) + u'\n';
    }
    append(&text, CommandLine::tr("To decide"), check.findings);
    append(&text, CommandLine::tr("To know"), check.notices);
    return text;
}

void writeMessages(JsonWriter &json, QStringView name, const QStringList &texts)
{
    QStringList shown;
    for (const QString &text : texts) {
        shown << console::withShownPaths(text);
    }
    json.newLine();
    writeTexts(json, name, shown);
}

QByteArray jsonText(OpenDesign &design, const DesignCheck &check)
{
    JsonWriter json;
    json.beginObject();
    writeDesign(json, designOf(design.database()));
    json.newLine();
    json.objects(u"sums", check.sums, [&json](const DesignCheck::Sum &sum) {
        json.entry(u"name", sum.name.trimmed());
        if (sum.count) {
            json.key(u"count");
            json.number(*sum.count);
        }
        json.entry(u"text", sum.text);
        if (!sum.references.isEmpty()) {
            writeTexts(json, u"references", sum.references);
        }
    });
    writeMessages(json, u"findings", check.findings);
    writeMessages(json, u"notices", check.notices);
    json.newLine();
    json.endObject();
    return json.bytes() + '\n';
}

/// The required properties that no part has, where another one may be meant.
QStringList misspelt(OpenDesign &design, const QStringList &required)
{
    QStringList texts;
    for (const QString &name : required) {
        const QString hint =
            isNewProperty(design, name) ? didYouMean(name, propertyNames(design)) : QString();
        if (!hint.isEmpty()) {
            texts << CommandLine::tr("no part has a property \"%1\"%2").arg(name, hint);
        }
    }
    return texts;
}

} // namespace

void CheckCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "check",
        QT_TRANSLATE_NOOP("Help", "Account for every symbol of the design; list what needs a decision"));
    m_design.addTo(*m_app);
    m_design.addColumns(*m_app);
    m_app
        ->add_option("--require", m_required,
                     QT_TRANSLATE_NOOP("Help", "Find the parts on which this property is empty or missing"))
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""))
        ->allow_extra_args(false);
    m_app->add_flag("--json", m_json,
                    QT_TRANSLATE_NOOP("Help", "Write JSON for programs instead of text for people"));
}

ExitStatus CheckCommand::run()
{
    // The sentences in JSON are those of every machine.
    const auto plain = m_json ? std::make_unique<PlainLanguage>() : nullptr;
    QStringList required;
    for (const std::string &name : m_required) {
        required.append(QString::fromStdString(name));
    }
    OpenDesign design;
    if (const ExitStatus status = design.open(m_design, false); status != ExitStatus::Done) {
        return status;
    }
    DesignCheck check = checkDesign(design.session(), design.database(), required);
    check.notices = design.fittingNotices() + check.notices + misspelt(design, required);
    if (!console::write(m_json ? jsonText(design, check) : readableText(check).toUtf8())) {
        return ExitStatus::UnwritableOutput;
    }
    return check.findings.isEmpty() ? ExitStatus::Done : ExitStatus::DesignProblem;
}
