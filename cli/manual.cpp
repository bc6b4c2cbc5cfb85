// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/manual.h"

#include "cli/commandtree.h"
#include "standalone/manualpage.h"

#include <utility>

namespace {

/// "bom report [OPTION]... DESIGN".
QString usageOf(const CommandDescription &command)
{
    QString text = QStringLiteral("bom ") + command.path + QStringLiteral(" [OPTION]...");
    for (const ValueDescription &value : command.arguments) {
        const QString name = value.name + (value.isRepeated ? QStringLiteral("...") : QString());
        text += u' ' + (value.isRequired ? name : u'[' + name + u']');
    }
    return text;
}

/// All but those that every command has, where there are such.
void addOptions(ManualPage &page, const CommandDescription &command, const QStringList &common = {})
{
    for (const OptionDescription &option : command.options) {
        if (common.contains(option.names.constFirst())) {
            continue;
        }
        page.entry(option.names.join(QStringLiteral(", ")), option.value.name, option.text);
    }
}

/// A command, or those below it.
void addCommand(ManualPage &page, const CommandDescription &command, const QStringList &common)
{
    if (!command.commands.isEmpty()) {
        for (const CommandDescription &below : command.commands) {
            addCommand(page, below, common);
        }
        return;
    }
    page.subsection(usageOf(command));
    page.paragraph(command.text + u'.');
    for (const ValueDescription &value : command.arguments) {
        page.entry(value.name, {}, value.text);
    }
    addOptions(page, command, common);
}

void addSurroundings(ManualPage &page)
{
    page.section(QStringLiteral("ENVIRONMENT"));
    const std::pair<const char *, const char *> variables[] = {
        {"COLUMNS", "The width of the terminal, where it is not the terminal's own."},
        {"NO_COLOR", "No colours and bold text on terminals, when it is not empty."},
        {"SOURCE_DATE_EPOCH", "The clock of reports, in seconds since 1970: equal designs give equal files."},
        {"XDG_CONFIG_HOME, XDG_DATA_HOME", "The folders of the user's files, instead of ~/.config and "
                                           "~/.local/share."}};
    for (const auto &[name, text] : variables) {
        page.entry(QString::fromLatin1(name), {}, QString::fromLatin1(text));
    }
    page.section(QStringLiteral("FILES"));
    page.entry(QStringLiteral("~/.local/share/bom/templates"), {}, QStringLiteral("The user's templates."));
    page.entry(QStringLiteral("NAME.bomnotes.txt, NAME.projectnotes.txt"), {},
               QStringLiteral("Beside a design: notes that stand in its reports."));
    page.entry(QStringLiteral("NAME-backup"), {},
               QStringLiteral("Beside a design: the contents that bom undo brings back."));
}

} // namespace

QString manualPage(const CommandDescription &program, const QString &version, const QString &exitStatus)
{
    ManualPage page(QStringLiteral("bom"), version);
    page.section(QStringLiteral("NAME"));
    page.paragraph(QStringLiteral("bom - ") + program.text.chopped(program.text.endsWith(u'.') ? 1 : 0));
    page.section(QStringLiteral("SYNOPSIS"));
    page.usage(QStringLiteral("bom"), QStringLiteral("[OPTION]... COMMAND [ARGUMENT]..."));
    page.section(QStringLiteral("OPTIONS"));
    page.paragraph(QStringLiteral("--help and --quiet may stand behind the command as well."));
    QStringList common;
    for (const OptionDescription &option : program.options) {
        common << option.names.constFirst();
    }
    addOptions(page, program);
    page.section(QStringLiteral("COMMANDS"));
    for (const CommandDescription &command : program.commands) {
        addCommand(page, command, common);
    }
    page.section(QStringLiteral("EXIT STATUS"));
    page.paragraph(exitStatus);
    addSurroundings(page);
    page.section(QStringLiteral("EXAMPLES"));
    page.example(QStringLiteral("bom report amp.kicad_pro -o amp.xlsx -o amp.pdf\n"
                                "bom check amp.kicad_pro --require MPN\n"
                                "bom set amp.kicad_pro R1,R4-R7 MPN=4711 --dry-run"));
    page.section(QStringLiteral("SEE ALSO"));
    page.reference(QStringLiteral("bomviewer"));
    return page.text();
}
