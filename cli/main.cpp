// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/checkcommand.h"
#include "cli/console.h"
#include "cli/editcommands.h"
#include "cli/partscommand.h"
#include "cli/reportcommand.h"
#include "cli/templatechoice.h"
#include "cli/templatecommand.h"
#include "standalone/environment.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <QGuiApplication>
#include <QHashFunctions>

#include <algorithm>
#include <array>
#include <clocale>
#include <initializer_list>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A standard stream that was closed would be the next file that is opened; what is written to this fails.
void occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0 && open("/dev/null", O_RDONLY) < 0) {
            _exit(1);
        }
    }
}

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
    console::message(QString::fromStdString(result.what()) + QStringLiteral(" (bom --help tells more)"));
    return ExitStatus::WrongUsage;
}

ExitStatus printUnknownWord(const QString &word)
{
    constexpr qsizetype longestWord = 40;
    console::message((word.startsWith(u'-') ? QStringLiteral("there is no option \"")
                                            : QStringLiteral("there is no command \"")) +
                     word.left(longestWord) + QStringLiteral("\" (bom --help tells more)"));
    return ExitStatus::WrongUsage;
}

/// The first of the unexpected words that looks like an option: what follows it is its value, or unexpected
/// only because of it. Empty when there is none.
std::string firstUnknownOption(const CLI::App &program, int argc, char *argv[])
{
    const std::vector<std::string> unexpected = program.remaining(true);
    for (int at = 1; at < argc; ++at) {
        const std::string word = argv[at];
        const std::string name = word.substr(0, word.find('='));
        const bool isUnexpected = std::find(unexpected.begin(), unexpected.end(), word) != unexpected.end();
        if (isUnexpected && name.size() > 1 && name.front() == '-') {
            return name;
        }
    }
    return {};
}

/// Nothing when the command line is well formed.
std::optional<ExitStatus> parse(CLI::App &program, int argc, char *argv[])
{
    try {
        program.parse(argc, argv);
    } catch (const CLI::RequiredError &result) {
        if (program.get_subcommands().empty() && argc > 1) {
            return printUnknownWord(QString::fromLocal8Bit(argv[1]));
        }
        if (argc == 2 && std::string_view(argv[1]) == "template") {
            console::message(QStringLiteral("a subcommand is required, such as list or show (bom template "
                                            "--help tells more)"));
            return ExitStatus::WrongUsage;
        }
        return printParseResult(program, result);
    } catch (const CLI::ExtrasError &result) {
        const std::string option = firstUnknownOption(program, argc, argv);
        return option.empty() ? printParseResult(program, result)
                              : printUnknownWord(QString::fromLocal8Bit(option.c_str()));
    } catch (const CLI::ParseError &result) {
        return printParseResult(program, result);
    }
    return std::nullopt;
}

/// The libraries' own remarks are no messages of this program; BOM_DEBUG shows them.
void handleLibraryMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    static const bool isShown = !qEnvironmentVariableIsEmpty("BOM_DEBUG");
    if (isShown || type == QtCriticalMsg || type == QtFatalMsg) {
        console::message(text);
    }
}

/// Painting takes a platform, though nothing is shown.
std::unique_ptr<QCoreApplication> makeApplication(bool paints, int &argc, char *argv[])
{
    if (!paints) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    return std::make_unique<QGuiApplication>(argc, argv);
}

/// Runs the command; its options have been read.
ExitStatus run(Command &command, char *argv[])
{
    // PDF files name the zone of their time of creation, in as many characters as it takes.
    if (sourceDateEpoch()) {
        qputenv("TZ", "UTC0");
    }
    qInstallMessageHandler(handleLibraryMessage);
    int argc = 1; // The program's own options are none of Qt's.
    const auto application = makeApplication(command.paints(), argc, argv);
    // Qt has set the user's locale. Libraries that print numbers would write them into files in its form.
    std::setlocale(LC_NUMERIC, "C");
    prepareTemplates();
    return command.run();
}

} // namespace

// An exception that gets here (no memory, or a mistake in how the options are defined) ends the program.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char *argv[])
{
    occupyClosedStreams();
    for (int argument = 1; argument < argc; ++argument) {
        // Its text would name another file, and that one would be read or overwritten.
        const QString text = QString::fromUtf8(argv[argument]);
        if (text.toUtf8() != argv[argument]) {
            console::message(u'"' + text + QStringLiteral("\" is no text in UTF-8"));
            return int(ExitStatus::WrongUsage);
        }
    }
    // PDF files list their fonts in the order of a hash.
    if (sourceDateEpoch()) {
        QHashSeed::setDeterministicGlobalSeed();
    }
    ReportCommand report;
    PartsCommand parts;
    CheckCommand check;
    SetCommand set;
    ApplyCommand apply;
    UndoCommand undo;
    TemplateCommand templates;
    const std::array<Command *, 7> commands{&report, &parts, &check, &set, &apply, &undo, &templates};

    CLI::App program("Bills of materials from KiCad designs and CSV part lists.", "bom");
    program.set_version_flag("--version", "bom " BOM_VERSION);
    program.require_subcommand(1);
    for (Command *command : commands) {
        command->addTo(program);
    }
    if (const auto status = parse(program, argc, argv)) {
        return int(*status);
    }
    const auto chosen = std::find_if(commands.begin(), commands.end(),
                                     [](const Command *command) { return command->isChosen(); });
    return int(chosen == commands.end() ? ExitStatus::WrongUsage : run(**chosen, argv));
}
