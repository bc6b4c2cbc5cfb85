// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/workbench.h"
#include "host/framework/hostsettings.h"
#include "host/framework/userlanguage.h"
#include "host/propdefs/propdefsfile.h"
#include "host/widgets/qthostui.h"
#include "richtext/editor/textedit.h"
#include "standalone/environment.h"
#include "standalone/manualpage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QIcon>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <clocale>
#include <memory>
#include <span>
#include <string_view>

namespace {

/// The exit status for something that cannot be read.
constexpr int unreadable = 3;
/// The one for wrong usage.
constexpr int wrongUsage = 2;

/// The program to those who start it in a terminal.
struct Usage
{
    Q_DECLARE_TR_FUNCTIONS(Usage)
public:
    QString purpose = tr("Shows the bill of materials of a KiCad schematic or a part list.");
    QString design = tr("A .kicad_sch, .kicad_pro or .csv file, or the folder of one; each further one gets "
                        "a window of its own.");
    QString module = tr("The library of the module.");
};

/// Whether the arguments ask for a text only, which needs no display.
bool asksForText(int argc, char **argv)
{
    const std::span<char *const> arguments(argv, std::size_t(argc));
    return std::any_of(arguments.begin(), arguments.end(), [](std::string_view argument) {
        return argument == "--help" || argument == "-h" || argument == "--help-all" ||
               argument == "--version" || argument == "-v" || argument == "--manual";
    });
}

/// Ends the program when the report of a design is painted for the first time; for scripts/bench.
class EndWhenShown final : public QObject
{
protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *shown = event->type() == QEvent::Paint ? qobject_cast<TextEdit *>(watched->parent()) : nullptr;
        if (shown && shown->document()->blockCount() > 1) {
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        }
        return false;
    }
};

/// The manual page bomviewer(1), of what --help prints.
QString manualText(const Usage &usage, const QList<QCommandLineOption> &options)
{
    ManualPage page(QStringLiteral("bomviewer"), QStringLiteral("bomviewer " BOM_VERSION));
    page.section(QStringLiteral("NAME"));
    page.paragraph(QStringLiteral("bomviewer - ") + usage.purpose.chopped(1));
    page.section(QStringLiteral("SYNOPSIS"));
    page.usage(QStringLiteral("bomviewer"), QStringLiteral("[OPTION]... [DESIGN]..."));
    page.section(QStringLiteral("OPTIONS"));
    page.entry(QStringLiteral("DESIGN"), {}, usage.design);
    for (const QCommandLineOption &option : options) {
        QStringList names;
        for (const QString &name : option.names()) {
            names << (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
        }
        page.entry(names.join(QStringLiteral(", ")), option.valueName(), option.description());
    }
    page.section(QStringLiteral("SEE ALSO"));
    page.reference(QStringLiteral("bom"));
    return page.text();
}

} // namespace

int main(int argc, char **argv)
{
    if (asksForText(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    // Qt has set the user's locale. Libraries that print numbers would write them into files in its form.
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(QStringLiteral("bomviewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BOM_VERSION));
    // The manual page is installed for everybody.
    const bool isForEverybody = argc > 1 && std::string_view(argv[1]) == "--manual";
    const auto language = isForEverybody ? nullptr : std::make_unique<UserLanguage>();
    const Usage usage;
    QGuiApplication::setDesktopFileName(QStringLiteral("xyz.bomviewer.bomviewer"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/bomviewer/bomviewer.svg")));
    QCommandLineParser parser;
    parser.setApplicationDescription(usage.purpose);
    const QCommandLineOption moduleOption(QStringLiteral("module"), usage.module, QStringLiteral("FILE"));
    const QList<QCommandLineOption> options{parser.addHelpOption(), parser.addVersionOption(), moduleOption};
    parser.addPositionalArgument(QStringLiteral("DESIGN"), usage.design, QStringLiteral("[DESIGN]..."));
    parser.addOption(moduleOption);
    QCommandLineOption manual(QStringLiteral("manual"));
    manual.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(manual);
    QCommandLineOption untilShown(QStringLiteral("until-shown"));
    untilShown.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(untilShown);
    if (!parser.parse(QCoreApplication::arguments())) {
        QTextStream(stderr) << "bomviewer: " << parser.errorText() << '\n';
        return wrongUsage;
    }
    parser.process(application);
    if (parser.isSet(manual)) {
        QTextStream(stdout) << manualText(usage, options);
        return 0;
    }
    const QStringList designs = parser.positionalArguments();

    QtHostUi ui;
    HostUi::install(&ui);
    IniHostSettings settings(userSettingsFile());
    HostSettings::install(&settings);
    setpropdefsfile(userDefinitionsFile());
    EndWhenShown endWhenShown;
    if (parser.isSet(untilShown)) {
        application.installEventFilter(&endWhenShown);
    }
    int status = unreadable;
    {
        Workbench workbench;
        if (workbench.start(parser.value(moduleOption))) {
            workbench.window().show();
            if (!designs.isEmpty()) {
                // Behind the window, which can be seen while the design is read.
                QTimer::singleShot(0, &workbench, [&] {
                    workbench.openInNewWindows(designs.mid(1));
                    (void)workbench.open(designs.constFirst());
                });
            }
            status = QApplication::exec();
        } else {
            QTextStream(stderr) << "bomviewer: " << workbench.error() << '\n';
            ui.warning(nullptr, QCoreApplication::translate("Workbench", "The Program Is Not Complete"),
                       workbench.error());
        }
    }
    HostSettings::install(nullptr);
    HostUi::install(nullptr);
    return status;
}
