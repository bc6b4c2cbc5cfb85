// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/checkcommand.h"

#include "account/designcheck.h"
#include "cli/console.h"
#include "cli/opendesign.h"

#include <CLI/Validators.hpp>

#include <algorithm>

namespace {

void append(QString *text, const QString &heading, const QStringList &lines)
{
    if (lines.isEmpty()) {
        return;
    }
    *text += u'\n' + heading + QStringLiteral(":\n");
    for (const QString &line : lines) {
        *text += QStringLiteral("  ") + printable(line) + u'\n';
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
    append(&text, QStringLiteral("To decide"), check.findings);
    append(&text, QStringLiteral("To know"), check.notices);
    return text;
}

} // namespace

void CheckCommand::addTo(CLI::App &program)
{
    m_app =
        program.add_subcommand("check", "Account for every symbol of the design; list what needs a decision");
    m_design.addTo(*m_app);
    m_app->add_option("--require", m_required, "Find the parts on which this property is empty or missing")
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""))
        ->allow_extra_args(false);
}

ExitStatus CheckCommand::run()
{
    QStringList required;
    for (const std::string &name : m_required) {
        required.append(QString::fromStdString(name));
    }
    OpenDesign design;
    if (const ExitStatus status = design.open(m_design, false); status != ExitStatus::Done) {
        return status;
    }
    const DesignCheck check = checkDesign(design.session(), design.database(), required);
    if (!console::write(readableText(check).toUtf8())) {
        return ExitStatus::UnwritableOutput;
    }
    return check.findings.isEmpty() ? ExitStatus::Done : ExitStatus::DesignProblem;
}
