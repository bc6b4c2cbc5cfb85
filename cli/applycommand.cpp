// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/applycommand.h"

#include "cli/console.h"
#include "cli/designedits.h"
#include "cli/edittable.h"
#include "cli/opendesign.h"
#include "standalone/tablefile.h"

#include <CLI/Validators.hpp>

void ApplyCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("apply", "Write the values that were changed in a CSV report, or any CSV "
                                            "file with references, into the design");
    m_options.design.addDesign(*m_app);
    m_app
        ->add_option("EDITS", m_edits,
                     "CSV file; its headings are fields of the template or names of properties")
        ->required()
        ->check(CLI::Validator(isGiven, ""));
    m_options.addTo(*m_app);
}

ExitStatus ApplyCommand::run()
{
    const auto locale = m_options.locale.locale();
    if (!locale) {
        return ExitStatus::WrongUsage;
    }
    OpenDesign design(*locale);
    if (const ExitStatus status = design.open(m_options.design, true); status != ExitStatus::Done) {
        return status;
    }
    DesignEdits edits(design);
    const QString path = QString::fromStdString(m_edits);
    EditTable comparison(path, design, edits);
    QString error;
    const auto table = readTable(path, comparison.cells().columnHeadings(true).at(2), &error);
    if (!table) {
        console::message(error);
        return ExitStatus::UnreadableInput;
    }
    comparison.compare(*table);
    return edits.write(m_options);
}
