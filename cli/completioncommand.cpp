// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/completioncommand.h"

#include "cli/commandtree.h"
#include "cli/manual.h"
#include "cli/shellcompletion.h"
#include "standalone/servicefiles.h"

#include <CLI/Validators.hpp>

void CompletionCommand::addTo(CLI::App &program)
{
    m_program = &program;
    m_app = program.add_subcommand(
        "completion",
        QT_TRANSLATE_NOOP("Help", "Print the completion for a shell, or the manual page of the program"));
    m_app->group("");
    m_app
        ->add_option("FORM", m_form,
                     QT_TRANSLATE_NOOP(
                         "Help", "bash, zsh, fish or man; services: the names that --for takes, one a line"))
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish", "man", "services"}).description(""));
}

ExitStatus CompletionCommand::run()
{
    const CommandDescription program = describe(*m_program);
    QString text;
    if (m_form == "bash") {
        text = bashCompletion(program);
    } else if (m_form == "zsh") {
        text = zshCompletion(program);
    } else if (m_form == "fish") {
        text = fishCompletion(program);
    } else if (m_form == "services") {
        text = serviceNames().join(u'\n') + u'\n';
    } else {
        text = manualPage(program, QString::fromStdString(m_program->version()),
                          QString::fromStdString(m_program->get_footer()));
    }
    return console::write(text.toUtf8()) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
