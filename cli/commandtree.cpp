// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/commandtree.h"

#include "cli/commandline.h"

#include <QHash>

namespace {

/// What the names that help gives to values stand for; others are texts.
ValueKind kindOf(const QString &name, const QString &command)
{
    const bool isTemplateCommand = command.startsWith(QStringLiteral("template "));
    if (isTemplateCommand && name == QStringLiteral("NAME") && command != QStringLiteral("template new")) {
        return ValueKind::Template;
    }
    static const QHash<QString, ValueKind> kinds{{QStringLiteral("F"), ValueKind::File},
                                                 {QStringLiteral("FILE"), ValueKind::File},
                                                 {QStringLiteral("EDITS"), ValueKind::File},
                                                 {QStringLiteral("DESIGN"), ValueKind::Design},
                                                 {QStringLiteral("NAME|FILE"), ValueKind::Template},
                                                 {QStringLiteral("V"), ValueKind::Variant},
                                                 {QStringLiteral("SERVICE F"), ValueKind::Service},
                                                 {QStringLiteral("COMMAND"), ValueKind::Command}};
    const bool isChoice = name.contains(u'|') && name == name.toLower();
    return isChoice ? ValueKind::Choice : kinds.value(name, ValueKind::Text);
}

ValueDescription valueOf(const CLI::Option &option, const QString &name, const QString &command)
{
    const ValueKind kind = kindOf(name, command);
    return {name,
            kind,
            kind == ValueKind::Choice ? name.split(u'|') : QStringList(),
            QString::fromStdString(option.get_description()),
            option.get_required(),
            option.get_expected_max() > 1};
}

OptionDescription optionOf(const CLI::Option &option)
{
    OptionDescription described{{}, {}, QString::fromStdString(option.get_description())};
    for (const std::string &name : option.get_lnames()) {
        described.names << QStringLiteral("--") + QString::fromStdString(name);
    }
    for (const std::string &name : option.get_snames()) {
        described.names << u'-' + QString::fromStdString(name);
    }
    if (option.get_type_size() != 0) {
        described.value = valueOf(option, QString::fromStdString(option.get_type_name()), {});
    }
    return described;
}

CommandDescription describe(const CLI::App &app, const QString &path)
{
    CommandDescription described{path, QString::fromStdString(app.get_description()), {}, {}, {}};
    for (const CLI::Option *option : app.get_options()) {
        if (option->get_positional()) {
            described.arguments << valueOf(*option, QString::fromStdString(option->get_name(true, false)),
                                           path);
        } else {
            described.options << optionOf(*option);
        }
    }
    for (const CLI::App *command : commandsOf(app)) {
        described.commands << describe(*command, (path.isEmpty() ? QString() : path + u' ') +
                                                     QString::fromStdString(command->get_name()));
    }
    return described;
}

} // namespace

CommandDescription describe(const CLI::App &program)
{
    return describe(program, {});
}

QString commandNames(const CommandDescription &command)
{
    QStringList names;
    for (const CommandDescription &below : command.commands) {
        names << below.name();
    }
    return names.join(u' ');
}

QList<CommandDescription> allCommands(const CommandDescription &program)
{
    QList<CommandDescription> all{program};
    for (const CommandDescription &command : program.commands) {
        all += allCommands(command);
    }
    return all;
}
