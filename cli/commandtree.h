// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>

#include <QList>
#include <QString>
#include <QStringList>

/// What completion can offer for a value.
enum class ValueKind
{
    /// Nothing: only the user knows it.
    Text,
    File,
    Design,
    /// A name, or a .bomt file.
    Template,
    Variant,
    /// A name of an assembly service, and then a file.
    Service,
    /// One of a few words.
    Choice,
    Command
};

/// An argument of a command, or the value of an option.
struct ValueDescription
{
    /// As help names it; empty for the value of a flag.
    QString name;
    ValueKind kind = ValueKind::Text;
    QStringList choices;
    /// What it means; the option says that of its value.
    QString text;
    bool isRequired = false;
    bool isRepeated = false;
};

struct OptionDescription
{
    /// "--csv", "-o": long names first.
    QStringList names;
    ValueDescription value;
    QString text;
};

/// A command with its options in the order of the help.
struct CommandDescription
{
    /// "report", "template show"; empty for the program.
    QString path;
    QString text;
    QList<ValueDescription> arguments;
    QList<OptionDescription> options;
    QList<CommandDescription> commands;

    /// The last word of the path.
    [[nodiscard]] QString name() const { return path.section(u' ', -1); }
};

/// The same descriptions that --help prints, for completion and manual pages. Commands that help does not
/// list are left out.
[[nodiscard]] CommandDescription describe(const CLI::App &program);

/// The names of the commands right below, with blanks between.
[[nodiscard]] QString commandNames(const CommandDescription &command);

/// The program and every command below, each before its own commands.
[[nodiscard]] QList<CommandDescription> allCommands(const CommandDescription &program);
