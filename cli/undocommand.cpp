// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/undocommand.h"

#include "cli/console.h"
#include "cli/designarguments.h"
#include "standalone/designsession.h"

#include <CLI/Validators.hpp>

void UndoCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("undo", "Take back what was written into a design last");
    m_app->add_option("DESIGN", m_design, "KiCad schematic or project, or CSV part list")
        ->required()
        ->check(CLI::Validator(isGiven, ""));
}

ExitStatus UndoCommand::run()
{
    const CliUi ui(QLocale::c());
    DesignSession session;
    session.setRereading(false);
    if (!session.open(QString::fromStdString(m_design))) {
        console::message(session.error());
        return ExitStatus::UnreadableInput;
    }
    if (!session.canUndo()) {
        console::message(QString::fromStdString(m_design) +
                         QStringLiteral(": there is nothing to take back"));
        return ExitStatus::DesignProblem;
    }
    const DesignSession::Undone undone = session.undo();
    for (const QString &problem : undone.problems) {
        console::message(problem);
    }
    QString text;
    for (const QString &file : undone.files) {
        text += printable(file) + QStringLiteral(" has its previous content again\n");
    }
    if (!console::write(text.toUtf8())) {
        return ExitStatus::UnwritableOutput;
    }
    if (undone.problems.isEmpty()) {
        return ExitStatus::Done;
    }
    return undone.isUnwritable ? ExitStatus::UnwritableOutput : ExitStatus::DesignProblem;
}
