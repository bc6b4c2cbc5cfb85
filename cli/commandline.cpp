// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"

#include "cli/helptexts.h"
#include "cli/nearnames.h"
#include "cli/texts.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr qsizetype longestWord = 40;

/// Help and version go to standard output; what is wrong goes, as one line, to standard error.
ExitStatus printParseResult(const CLI::App &program, const CLI::ParseError &result)
{
    if (result.get_exit_code() == int(CLI::ExitCodes::Success)) {
        std::ostringstream text;
        std::ostringstream none;
        (void)program.exit(result, text, none);
        return console::write(QByteArray::fromStdString(text.str())) ? ExitStatus::Done
                                                                     : ExitStatus::UnwritableOutput;
    }
    console::message(CommandLine::tr("%1 (bom --help tells more)").arg(parserMessage(result)));
    return ExitStatus::WrongUsage;
}

/// The command that the command line reached, "template show" of "template show x": the last is the
/// innermost.
const CLI::App &chosenCommand(const CLI::App &program)
{
    const CLI::App *app = &program;
    while (!app->get_subcommands().empty()) {
        app = app->get_subcommands().front();
    }
    return *app;
}

QStringList optionNames(const CLI::App &app)
{
    QStringList names;
    for (const CLI::Option *option : app.get_options()) {
        for (const std::string &name : option->get_lnames()) {
            names << QStringLiteral("--") + QString::fromStdString(name);
        }
    }
    return names;
}

ExitStatus reportUnknownOption(const CLI::App &program, const QString &word)
{
    console::message(CommandLine::tr("there is no option \"%1\"%2 (bom --help tells more)")
                         .arg(word.left(longestWord), didYouMean(word, optionNames(chosenCommand(program)))));
    return ExitStatus::WrongUsage;
}

/// The first of the unexpected words that looks like an option: what follows it is its value, or unexpected
/// only because of it. Empty when there is none.
std::string firstUnknownOption(const CLI::App &program, int argc, char *argv[])
{
    const std::vector<std::string> unexpected = program.remaining(true);
    for (int at = 1; at < argc; ++at) {
        const std::string word = argv[at];
        if (word == "--") {
            break;
        }
        const std::string name = word.substr(0, word.find('='));
        const bool isUnexpected = std::find(unexpected.begin(), unexpected.end(), word) != unexpected.end();
        if (isUnexpected && name.size() > 1 && name.front() == '-') {
            return name;
        }
    }
    return {};
}

/// A command is missing, which may be misspelt.
ExitStatus reportMissingCommand(const CLI::App &program, const CLI::App &app, const CLI::RequiredError &error)
{
    if (const std::vector<std::string> words = program.remaining(true); !words.empty()) {
        const QString word = QString::fromStdString(words.front());
        return word.startsWith(u'-') ? reportUnknownOption(program, word.section(u'=', 0, 0))
                                     : reportUnknownCommand(app, word);
    }
    if (!app.get_parent()) {
        return printParseResult(program, error);
    }
    console::message(
        CommandLine::tr("a subcommand is required, such as list or show (bom %1 --help tells more)")
            .arg(QString::fromStdString(app.get_name())));
    return ExitStatus::WrongUsage;
}

} // namespace

std::optional<ExitStatus> parseCommandLine(CLI::App &program, int argc, char *argv[])
{
    const auto reportOptionOr = [&](const CLI::ParseError &error) {
        const std::string option = firstUnknownOption(program, argc, argv);
        return option.empty() ? printParseResult(program, error)
                              : reportUnknownOption(program, QString::fromStdString(option));
    };
    try {
        program.parse(argc, argv);
    } catch (const CLI::RequiredError &error) {
        const CLI::App &app = chosenCommand(program);
        return app.get_require_subcommand_min() > 0 ? reportMissingCommand(program, app, error)
                                                    : reportOptionOr(error);
    } catch (const CLI::ExtrasError &error) {
        std::vector<std::string> words = program.remaining(true);
        std::erase(words, "--");
        return reportOptionOr(words.empty() ? error : CLI::ExtrasError(std::move(words)));
    } catch (const CLI::ParseError &error) {
        return printParseResult(program, error);
    }
    return std::nullopt;
}

std::vector<const CLI::App *> commandsOf(const CLI::App &app)
{
    return app.get_subcommands([](const CLI::App *command) { return !command->get_group().empty(); });
}

ExitStatus reportUnknownCommand(const CLI::App &parent, const QString &word)
{
    QStringList names;
    for (const CLI::App *command : commandsOf(parent)) {
        names << QString::fromStdString(command->get_name());
    }
    const QString path = parent.get_parent() ? QString::fromStdString(parent.get_name()) + u' ' : QString();
    console::message(CommandLine::tr("there is no command \"%1\"%2 (bom %3--help tells more)")
                         .arg(path + word.left(longestWord), didYouMean(word, names), path));
    return ExitStatus::WrongUsage;
}
