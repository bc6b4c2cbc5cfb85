// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/shellcompletion.h"

#include "cli/commandtree.h"

namespace {

const QLatin1String fishHead(R"sh(# Completion of bom for fish.
function __bom_words
    for word in (commandline -opc)[2..-1]
        string match -q -- '-*' $word; or echo $word
    end
end
function __bom_is
    set -l words (__bom_words)
    set -l last (count $argv)
    test (count $words) -ge $last; and test "$words[1..$last]" = "$argv"
end
function __bom_ends
    set -l words (__bom_words)
    test "$words" = "$argv"
end
function __bom_templates
    bom template list 2>/dev/null | string replace -r '\t.*' ''
    __fish_complete_suffix .bomt
end
function __bom_variants
    for word in (__bom_words)
        test -e $word; and bom variants $word 2>/dev/null; and return
    end
end
function __bom_services
    bom completion services 2>/dev/null
end
function __bom_designs
    __fish_complete_suffix .kicad_pro
    __fish_complete_suffix .kicad_sch
    __fish_complete_suffix .csv
end
complete -c bom -f
)sh");

QString fishText(QString text)
{
    return u'\'' + text.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'")) + u'\'';
}

QString fishAction(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueKind::File:
        return QStringLiteral(" -F");
    case ValueKind::Design:
        return QStringLiteral(" -a '(__bom_designs)'");
    case ValueKind::Template:
        return QStringLiteral(" -a '(__bom_templates)'");
    case ValueKind::Variant:
        return QStringLiteral(" -a '(__bom_variants)'");
    case ValueKind::Service:
        return QStringLiteral(" -a '(__bom_services)'");
    case ValueKind::Choice:
        return QStringLiteral(" -a ") + fishText(value.choices.join(u' '));
    case ValueKind::Command:
    case ValueKind::Text:
        break;
    }
    return {};
}

QString fishCommand(const CommandDescription &command, const CommandDescription &program)
{
    const QString is = QStringLiteral("complete -c bom -n '__bom_is ") + command.path + QStringLiteral("'");
    const QString ends =
        QStringLiteral("complete -c bom -n '__bom_ends ") + command.path + QStringLiteral("'");
    QString text;
    for (const CommandDescription &below : command.commands) {
        text += ends + QStringLiteral(" -a ") + below.name() + QStringLiteral(" -d ") + fishText(below.text) +
                u'\n';
    }
    for (const ValueDescription &value : command.arguments) {
        const QString action = value.kind == ValueKind::Command
                                   ? QStringLiteral(" -a ") + fishText(commandNames(program))
                                   : fishAction(value);
        text += action.isEmpty() ? QString() : is + action + u'\n';
    }
    for (const OptionDescription &option : command.options) {
        text += command.commands.isEmpty() ? is : ends;
        for (const QString &name : option.names) {
            text += name.startsWith(QLatin1String("--")) ? QStringLiteral(" -l ") + name.mid(2)
                                                         : QStringLiteral(" -s ") + name.mid(1);
        }
        const bool takesFiles = option.value.kind == ValueKind::File;
        text += (option.value.name.isEmpty() ? QString()
                 : takesFiles                ? QStringLiteral(" -r")
                                             : QStringLiteral(" -x")) +
                fishAction(option.value) + QStringLiteral(" -d ") + fishText(option.text) + u'\n';
    }
    return text;
}

} // namespace

QString fishCompletion(const CommandDescription &program)
{
    QString text = fishHead;
    for (const CommandDescription &command : allCommands(program)) {
        text += fishCommand(command, program);
    }
    return text;
}
