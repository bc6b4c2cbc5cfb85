// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/checkcommand.h"

#include "cli/console.h"
#include "cli/designcheck.h"
#include "cli/opendesign.h"

#include <CLI/Validators.hpp>

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
    const DesignCheck check = checkDesign(design, required);
    if (!console::write(check.text().toUtf8())) {
        return ExitStatus::UnwritableOutput;
    }
    return check.findings.isEmpty() ? ExitStatus::Done : ExitStatus::DesignProblem;
}
