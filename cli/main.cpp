// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/checkcommand.h"
#include "cli/commandline.h"
#include "cli/completioncommand.h"
#include "cli/console.h"
#include "cli/editcommands.h"
#include "cli/fieldscommand.h"
#include "cli/helpcommand.h"
#include "cli/helptexts.h"
#include "cli/partscommand.h"
#include "cli/reportcommand.h"
#include "cli/templatechoice.h"
#include "cli/templatecommand.h"
#include "cli/texts.h"
#include "cli/variantscommand.h"
#include "host/framework/userlanguage.h"
#include "standalone/environment.h"

#include <QGuiApplication>
#include <QHashFunctions>

#include <algorithm>
#include <array>
#include <clocale>
#include <memory>
#include <optional>
#include <string_view>

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

/// The libraries' own remarks are no messages of this program; BOM_DEBUG shows them.
void handleLibraryMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    static const bool isShown = !qEnvironmentVariableIsEmpty("BOM_DEBUG");
    if (isShown || type == QtCriticalMsg || type == QtFatalMsg) {
        console::message(text);
    }
}

/// False, after a message, when an argument is no UTF-8: its text would name another file, and that one would
/// be read or overwritten.
bool areTexts(int argc, char *argv[])
{
    for (int argument = 1; argument < argc; ++argument) {
        const QString text = QString::fromUtf8(argv[argument]);
        if (text.toUtf8() != argv[argument]) {
            console::message(CommandLine::tr("\"%1\" is no text in UTF-8").arg(text));
            return false;
        }
    }
    return true;
}

/// Adds --quiet before and behind the command, as people write it.
void addQuiet(CLI::App &app, bool *isQuiet)
{
    for (CLI::App *command : app.get_subcommands({})) {
        addQuiet(*command, isQuiet);
    }
    app.add_flag("-q,--quiet", *isQuiet,
                 QT_TRANSLATE_NOOP("Help", "Leave out notices on standard error; errors stay"));
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

/// Has options explained and refused in the user's language. That takes an application, though which one the
/// command needs is not known yet; without a translation nothing is made.
class EarlyTexts final
{
public:
    EarlyTexts(int argc, char *argv[])
    {
        // Completion is installed for everybody.
        const bool isForEverybody = argc > 1 && std::string_view(argv[1]) == "completion";
        if (!isForEverybody && !UserLanguage::preferred().isEmpty()) {
            m_application = std::make_unique<QCoreApplication>(m_argc, argv);
            m_language = std::make_unique<UserLanguage>();
        }
    }

    /// To be called when all options have been added.
    void translate(CLI::App &program) const
    {
        if (m_language) {
            translateHelp(program);
        }
    }

private:
    int m_argc = 1;
    std::unique_ptr<QCoreApplication> m_application;
    std::unique_ptr<UserLanguage> m_language;
};

/// Runs the command; its options have been read.
ExitStatus run(Command &command, char *argv[])
{
    // PDF files name the zone of their time of creation, in as many characters as it takes.
    if (sourceDateEpoch()) {
        qputenv("TZ", "UTC0");
    }
    int argc = 1; // The program's own options are none of Qt's.
    const auto application = makeApplication(command.paints(), argc, argv);
    const UserLanguage language;
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
    qInstallMessageHandler(handleLibraryMessage);
    std::optional<EarlyTexts> texts(std::in_place, argc, argv);
    if (!areTexts(argc, argv)) {
        return int(ExitStatus::WrongUsage);
    }
    // PDF files list their fonts in the order of a hash.
    if (sourceDateEpoch()) {
        QHashSeed::setDeterministicGlobalSeed();
    }
    ReportCommand report;
    PartsCommand parts;
    CheckCommand check;
    FieldsCommand fields;
    SetCommand set;
    ApplyCommand apply;
    UndoCommand undo;
    VariantsCommand variants;
    TemplateCommand templates;
    HelpCommand help;
    CompletionCommand completion;
    const std::array<Command *, 11> commands{&report, &parts, &check,     &fields, &variants,  &set,
                                             &apply,  &undo,  &templates, &help,   &completion};

    CLI::App program(QT_TRANSLATE_NOOP("Help", "Bills of materials from KiCad designs and CSV part lists."),
                     "bom");
    program.set_version_flag("-V,--version", "bom " BOM_VERSION);
    program.footer(QT_TRANSLATE_NOOP(
        "Help",
        "Exit status: 0 done; 1 the design has a problem that the user must decide on; 2 wrong usage; "
        "3 an input cannot be read; 4 an output cannot be written."));
    program.require_subcommand(1);
    for (Command *command : commands) {
        command->addTo(program);
    }
    bool isQuiet = false;
    addQuiet(program, &isQuiet);
    texts->translate(program);
    if (const auto status = parseCommandLine(program, argc, argv)) {
        return int(*status);
    }
    texts.reset();
    console::setQuiet(isQuiet);
    const auto chosen = std::find_if(commands.begin(), commands.end(),
                                     [](const Command *command) { return command->isChosen(); });
    return int(chosen == commands.end() ? ExitStatus::WrongUsage : run(**chosen, argv));
}
