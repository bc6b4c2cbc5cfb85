// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/shellcompletion.h"

#include "cli/commandtree.h"

#include <QStringList>

namespace {

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

const QLatin1String bashHead(R"sh(# Completion of bom for bash.
_bom_words() {
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur")
}
_bom_files() {
    compopt -o filenames 2>/dev/null
    if [[ $# -eq 0 ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
    else
        mapfile -t COMPREPLY < <(compgen -d -- "$cur"; shopt -s extglob; compgen -f -X "!$1" -- "$cur")
    fi
}
_bom_lines() {
    compopt -o filenames 2>/dev/null
    local line
    while IFS= read -r line; do
        line=${line%%$'\t'*}
        [[ $line == "$cur"* ]] && COMPREPLY+=("$line")
    done
}
_bom_templates() {
    _bom_files '*.bomt'
    _bom_lines < <("${COMP_WORDS[0]}" template list 2>/dev/null)
}
_bom_variants() {
    [[ -n $design ]] && _bom_lines < <("${COMP_WORDS[0]}" variants "$design" 2>/dev/null)
}
_bom_services() {
    _bom_lines < <("${COMP_WORDS[0]}" completion services 2>/dev/null)
}
_bom_designs() {
    _bom_files '*.@(kicad_pro|kicad_sch|csv)'
}
)sh");

QString bashAction(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueKind::File:
        return QStringLiteral("_bom_files");
    case ValueKind::Design:
        return QStringLiteral("_bom_designs");
    case ValueKind::Template:
        return QStringLiteral("_bom_templates");
    case ValueKind::Variant:
        return QStringLiteral("_bom_variants");
    case ValueKind::Service:
        return QStringLiteral("_bom_services");
    case ValueKind::Choice:
        return QStringLiteral("_bom_words ") + quoted(value.choices.join(u' '));
    case ValueKind::Command:
    case ValueKind::Text:
        break;
    }
    return QStringLiteral(":");
}

/// The case of one command: its options, what follows each, and its arguments one after the other.
QString bashCase(const CommandDescription &command, const CommandDescription &program)
{
    QStringList options;
    QString values;
    QStringList withValue;
    for (const OptionDescription &option : command.options) {
        options << option.names;
        if (!option.value.name.isEmpty()) {
            withValue << option.names;
            values += QStringLiteral("            ") + option.names.join(u'|') + QStringLiteral(") ") +
                      bashAction(option.value) + QStringLiteral("; return ;;\n");
        }
    }
    QString arguments;
    for (qsizetype i = 0; i < command.arguments.size(); ++i) {
        const ValueDescription &value = command.arguments.at(i);
        const QString action = value.kind == ValueKind::Command
                                   ? QStringLiteral("_bom_words ") + quoted(commandNames(program))
                                   : bashAction(value);
        arguments += QStringLiteral("            ") +
                     (value.isRepeated ? QStringLiteral("*") : QString::number(i)) + QStringLiteral(") ") +
                     action + QStringLiteral(" ;;\n");
    }
    if (!command.commands.isEmpty()) {
        arguments = QStringLiteral("            0) _bom_words ") + quoted(commandNames(command)) +
                    QStringLiteral(" ;;\n");
    }
    return QStringLiteral("    ") + quoted(command.path) + QStringLiteral(")\n        _bom_place ") +
           quoted(withValue.join(u' ')) + QStringLiteral("\n        case $prev in\n") + values +
           QStringLiteral("        esac\n        if [[ $cur == -* ]]; then _bom_words ") +
           quoted(options.join(u' ')) + QStringLiteral("; return; fi\n        case $place in\n") + arguments +
           QStringLiteral("        esac ;;\n");
}

/// Finds out which command the words reached, how many arguments it has before the cursor, and its design.
const QLatin1String bashPlace(R"sh(_bom_place() {
    local i
    place=0
    for ((i = start; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        -*) [[ ${COMP_WORDS[i+1]} == = ]] && ((i++))
            [[ " $1 " == *" ${COMP_WORDS[i]} "* || ${COMP_WORDS[i]} == = ]] && ((i++))
            [[ ${COMP_WORDS[i-1]} == --for ]] && ((i++)) ;;
        *) ((place++ == 0)) && design=${COMP_WORDS[i]} ;;
        esac
    done
}
_bom() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
    local command= start=1 place=0 design= i
    COMPREPLY=()
    # Of --option=value, readline makes three words.
    [[ $prev == = ]] && prev=${COMP_WORDS[COMP_CWORD-2]}
    [[ $cur == = ]] && cur=
    # --for takes a name and a file.
    [[ ${COMP_WORDS[COMP_CWORD-2]-} == --for ]] && { _bom_files; return; }
    for ((i = 1; i < COMP_CWORD; i++)); do
        case "$command ${COMP_WORDS[i]}" in
)sh");

} // namespace

QString bashCompletion(const CommandDescription &program)
{
    QString cases;
    QStringList paths;
    for (const CommandDescription &command : allCommands(program)) {
        cases += bashCase(command, program);
        if (!command.path.isEmpty()) {
            paths << quoted((command.path.contains(u' ') ? QString() : QStringLiteral(" ")) + command.path);
        }
    }
    return bashHead + bashPlace + QStringLiteral("        ") + paths.join(u'|') +
           QStringLiteral(") command=\"${command:+$command }${COMP_WORDS[i]}\"; start=$((i + 1)) ;;\n") +
           QStringLiteral("        esac\n    done\n    case $command in\n") + cases +
           QStringLiteral("    esac\n}\ncomplete -F _bom bom\n");
}
