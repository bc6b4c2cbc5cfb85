// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/helpcommand.h"

#include "cli/commandline.h"

#include <CLI/Formatter.hpp>

void HelpCommand::addTo(CLI::App &program)
{
    m_program = &program;
    m_app = program.add_subcommand("help",
                                   QT_TRANSLATE_NOOP("Help", "Explain the program or one of its commands"));
    m_app->add_option("COMMAND", m_words,
                      QT_TRANSLATE_NOOP("Help", "The command, such as report or template show"));
}

ExitStatus HelpCommand::run()
{
    const CLI::App *app = m_program;
    std::string name = app->get_name();
    for (const std::string &word : m_words) {
        // Those that the list of commands leaves out, too.
        const auto found =
            app->get_subcommands([&word](const CLI::App *command) { return command->get_name() == word; });
        if (found.empty()) {
            return reportUnknownCommand(*app, QString::fromStdString(word));
        }
        app = found.front();
        name += ' ' + word;
    }
    const std::string text = app->get_formatter()->make_help(app, name, CLI::AppFormatMode::Normal);
    return console::write(QByteArray::fromStdString(text)) ? ExitStatus::Done : ExitStatus::UnwritableOutput;
}
