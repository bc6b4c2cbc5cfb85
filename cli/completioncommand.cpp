// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/completioncommand.h"

#include "cli/commandtree.h"
#include "cli/manual.h"
#include "cli/shellcompletion.h"

#include <CLI/Validators.hpp>

void CompletionCommand::addTo(CLI::App &program)
{
    m_program = &program;
    m_app = program.add_subcommand("completion",
                                   "Print the completion for a shell, or the manual page of the program");
    m_app->group("");
    m_app->add_option("FORM", m_form, "bash, zsh, fish or man")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish", "man"}).description(""));
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
    } else {
        text = manualPage(program, QString::fromStdString(m_program->version()),
                          QString::fromStdString(m_program->get_footer()));
    }
    return console::write(text.toUtf8()) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
