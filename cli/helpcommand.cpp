// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/helpcommand.h"

#include "cli/commandline.h"

#include <CLI/Formatter.hpp>

#include <algorithm>

void HelpCommand::addTo(CLI::App &program)
{
    m_program = &program;
    m_app = program.add_subcommand("help", "Explain the program or one of its commands");
    m_app->add_option("COMMAND", m_words, "The command, such as report or template show");
}

ExitStatus HelpCommand::run()
{
    const CLI::App *app = m_program;
    std::string name = app->get_name();
    for (const std::string &word : m_words) {
        const auto commands = commandsOf(*app);
        const auto found = std::find_if(commands.begin(), commands.end(), [&word](const CLI::App *command) {
            return command->get_name() == word;
        });
        if (found == commands.end()) {
            return reportUnknownCommand(*app, QString::fromStdString(word));
        }
        app = *found;
        name += ' ' + word;
    }
    const std::string text = app->get_formatter()->make_help(app, name, CLI::AppFormatMode::Normal);
    return console::write(QByteArray::fromStdString(text)) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
