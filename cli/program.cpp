// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/program.h"

#include "cli/applycommand.h"
#include "cli/checkcommand.h"
#include "cli/console.h"
#include "cli/partscommand.h"
#include "cli/reportcommand.h"
#include "cli/setcommand.h"
#include "cli/templatechoice.h"
#include "cli/templatecommand.h"
#include "cli/undocommand.h"
#include "standalone/environment.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <QApplication>
#include <QHashFunctions>

#include <array>
#include <optional>
#include <span>
#include <sstream>

namespace {

/// Help and version go to standard output; what is wrong goes, as one line, to standard error.
ExitStatus tellParseResult(const CLI::App &program, const CLI::ParseError &result)
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

ExitStatus tellUnknownWord(const QString &word)
{
    constexpr qsizetype longestWord = 40;
    console::message((word.startsWith(u'-') ? QStringLiteral("there is no option \"")
                                            : QStringLiteral("there is no command \"")) +
                     word.left(longestWord) + QStringLiteral("\" (bom --help tells more)"));
    return ExitStatus::WrongUsage;
}

/// Nothing when the command line is well formed.
std::optional<ExitStatus> parse(CLI::App &program, int argc, char *argv[])
{
    try {
        program.parse(argc, argv);
    } catch (const CLI::RequiredError &result) {
        if (program.get_subcommands().empty() && argc > 1) {
            return tellUnknownWord(QString::fromLocal8Bit(argv[1]));
        }
        return tellParseResult(program, result);
    } catch (const CLI::ParseError &result) {
        return tellParseResult(program, result);
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

ExitStatus runChosen(std::span<Command *const> commands)
{
    for (Command *command : commands) {
        if (command->isChosen()) {
            return command->run();
        }
    }
    return ExitStatus::WrongUsage;
}

} // namespace

int runProgram(int argc, char *argv[])
{
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

    // The views are widgets, but nothing is shown; the program's own options are none of Qt's.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // PDF files name the zone of their time of creation, in as many characters as it takes.
    if (sourceDateEpoch()) {
        qputenv("TZ", "UTC0");
    }
    qInstallMessageHandler(handleLibraryMessage);
    int qtArgc = 1;
    const QApplication application(qtArgc, argv);
    prepareTemplates();
    return int(runChosen(commands));
}
