// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/shellcompletion.h"

#include "cli/commandtree.h"

namespace {

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

const QLatin1String zshHead(R"sh(#compdef bom
# Completion of bom for zsh.
__bom_templates() {
    local -a names=(${${(f)"$(bom template list 2>/dev/null)"}%%$'\t'*})
    compadd -a names
    _files -g "*.bomt(-.)"
}
__bom_services() {
    local -a names=(${(f)"$(bom completion services 2>/dev/null)"})
    compadd -a names
}
__bom_variants() {
    local word
    local -a names
    for word in $words; do
        [[ -e $word ]] && names=(${(f)"$(bom variants $word 2>/dev/null)"}) && break
    done
    compadd -a names
}
)sh");

QString zshText(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\"));
    for (const QChar c : {u'[', u']', u':'}) {
        text.replace(c, QStringLiteral("\\") + c);
    }
    return text;
}

QString zshFunction(const QString &path)
{
    return QStringLiteral("_bom") + (path.isEmpty() ? QString() : u'_' + QString(path).replace(u' ', u'_'));
}

QString zshAction(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueKind::File:
        return QStringLiteral("_files");
    case ValueKind::Design:
        return QStringLiteral("_files -g \"*.(kicad_pro|kicad_sch|csv)(-.)\"");
    case ValueKind::Template:
        return QStringLiteral("__bom_templates");
    case ValueKind::Variant:
        return QStringLiteral("__bom_variants");
    case ValueKind::Service:
        return QStringLiteral("__bom_services:file:_files");
    case ValueKind::Choice:
        return u'(' + value.choices.join(u' ') + u')';
    case ValueKind::Command:
        return QStringLiteral("__bom_commands");
    case ValueKind::Text:
        break;
    }
    return QStringLiteral(" ");
}

QString zshOptions(const CommandDescription &command)
{
    QString text;
    for (const OptionDescription &option : command.options) {
        const QString value = option.value.name.isEmpty()
                                  ? QString()
                                  : u':' + zshText(option.value.name) + u':' + zshAction(option.value);
        const QString repeated = option.value.isRepeated ? QStringLiteral("*") : QString();
        for (const QString &name : option.names) {
            const QString others =
                option.value.isRepeated ? QString() : u'(' + option.names.join(u' ') + u')';
            text += QStringLiteral(" \\\n        ") +
                    quoted(others + repeated + name + u'[' + zshText(option.text) + u']' + value);
        }
    }
    return text;
}

QString zshArguments(const CommandDescription &command)
{
    QString text;
    for (const ValueDescription &value : command.arguments) {
        text += QStringLiteral(" \\\n        ") +
                quoted((value.isRepeated ? QStringLiteral("*:") : QStringLiteral(":")) + zshText(value.name) +
                       u':' + zshAction(value));
    }
    return text;
}

/// A list of commands with what they do.
QString zshCommands(const QString &name, const CommandDescription &command)
{
    QString text = name + QStringLiteral("() {\n    local -a commands=(\n");
    for (const CommandDescription &below : command.commands) {
        text += QStringLiteral("        ") + quoted(zshText(below.name()) + u':' + below.text) + u'\n';
    }
    return text + QStringLiteral("    )\n    _describe -t commands command commands\n}\n");
}

QString zshCommand(const CommandDescription &command)
{
    const QString function = zshFunction(command.path);
    if (command.commands.isEmpty()) {
        return function + QStringLiteral("() {\n    _arguments -s") + zshOptions(command) +
               zshArguments(command) + QStringLiteral("\n}\n");
    }
    const QString list = u'_' + function + QStringLiteral("_commands");
    QString text = command.path.isEmpty() ? QString() : zshCommands(list, command);
    text += function +
            QStringLiteral("() {\n    local context state state_descr line\n    typeset -A opt_args\n"
                           "    _arguments -s -C") +
            zshOptions(command) + QStringLiteral(" \\\n        ") +
            quoted(QStringLiteral("1:command:") +
                   (command.path.isEmpty() ? QStringLiteral("__bom_commands") : list)) +
            QStringLiteral(" \\\n        '*::argument:->rest' && return\n    case $line[1] in\n");
    for (const CommandDescription &below : command.commands) {
        text += QStringLiteral("    ") + below.name() + QStringLiteral(") ") + zshFunction(below.path) +
                QStringLiteral(" ;;\n");
    }
    return text + QStringLiteral("    esac\n}\n");
}

} // namespace

QString zshCompletion(const CommandDescription &program)
{
    QString text = zshHead + zshCommands(QStringLiteral("__bom_commands"), program);
    const QList<CommandDescription> commands = allCommands(program);
    for (const CommandDescription &command : commands) {
        text += zshCommand(command);
    }
    return text +
           QStringLiteral("if [[ $funcstack[1] == _bom ]]; then _bom \"$@\"; else compdef _bom bom; fi\n");
}
