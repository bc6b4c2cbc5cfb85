// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/helptexts.h"

#include <CLI/Formatter.hpp>

#include <QCoreApplication>
#include <QRegularExpression>

#include <string>

namespace {

std::string translated(const std::string &text)
{
    return text.empty() ? text : QCoreApplication::translate("Help", text.c_str()).toStdString();
}

/// The parser's own words in the help.
constexpr const char *labels[] = {
    QT_TRANSLATE_NOOP("Help", "Usage"),       QT_TRANSLATE_NOOP("Help", "OPTIONS"),
    QT_TRANSLATE_NOOP("Help", "SUBCOMMAND"),  QT_TRANSLATE_NOOP("Help", "SUBCOMMANDS"),
    QT_TRANSLATE_NOOP("Help", "Positionals"), QT_TRANSLATE_NOOP("Help", "REQUIRED"),
    QT_TRANSLATE_NOOP("Help", "Needs"),       QT_TRANSLATE_NOOP("Help", "Excludes")};
/// And those that it gives to options and commands.
[[maybe_unused]] constexpr const char *given[] = {
    QT_TRANSLATE_NOOP("Help", "Options"), QT_TRANSLATE_NOOP("Help", "Subcommands"),
    QT_TRANSLATE_NOOP("Help", "Print this help message and exit"),
    QT_TRANSLATE_NOOP("Help", "Display program version information and exit")};

/// The parser's messages, with places for what differs; a later one may fit what an earlier one means.
constexpr const char *messages[] = {
    QT_TRANSLATE_NOOP("Help", "A subcommand is required"),
    QT_TRANSLATE_NOOP("Help", "The following argument was not expected: %1"),
    QT_TRANSLATE_NOOP("Help", "The following arguments were not expected: %1"),
    QT_TRANSLATE_NOOP("Help", "Could not convert: %1 = %2"),
    QT_TRANSLATE_NOOP("Help", "The value %1 is not an allowed value for %2"),
    QT_TRANSLATE_NOOP("Help", "Expected exactly %1 arguments to %2, got %3"),
    QT_TRANSLATE_NOOP("Help", "Expected at least %1 arguments to %2, got %3"),
    QT_TRANSLATE_NOOP("Help", "%1: the text must not be empty"),
    QT_TRANSLATE_NOOP("Help", "%1: %2 not in {%3}"),
    QT_TRANSLATE_NOOP("Help", "%1: %2 required %3 missing"),
    QT_TRANSLATE_NOOP("Help", "%1: At least %2 required but received %3"),
    QT_TRANSLATE_NOOP("Help", "%1: At Most %2 required but received %3"),
    QT_TRANSLATE_NOOP("Help", "%1: Should be true/false or a number"),
    QT_TRANSLATE_NOOP("Help", "%1 was given a disallowed flag override"),
    QT_TRANSLATE_NOOP("Help", "%1 is required"),
    QT_TRANSLATE_NOOP("Help", "%1 requires %2"),
    QT_TRANSLATE_NOOP("Help", "%1 excludes %2")};

void translate(CLI::App &app)
{
    app.description(translated(app.get_description()));
    app.footer(translated(app.get_footer()));
    app.group(translated(app.get_group()));
    for (CLI::Option *option : app.get_options()) {
        option->description(translated(option->get_description()));
        option->group(translated(option->get_group()));
    }
    for (CLI::App *command : app.get_subcommands({})) {
        translate(*command);
    }
}

/// What matches the message with anything in its places.
QRegularExpression patternOf(const char *message)
{
    static const QRegularExpression place(QStringLiteral("\\\\%\\d"));
    QString pattern = QRegularExpression::escape(QString::fromLatin1(message));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(pattern.replace(place, QStringLiteral("(.*)"))),
        QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

void translateHelp(CLI::App &program)
{
    for (const char *label : labels) {
        program.get_formatter()->label(label, translated(label));
    }
    translate(program);
}

QString parserMessage(const CLI::Error &error)
{
    const QString text = QString::fromStdString(error.what());
    for (const char *message : messages) {
        const QRegularExpressionMatch match = patternOf(message).match(text);
        if (!match.hasMatch()) {
            continue;
        }
        // The numbers of the places are in order in the original.
        const QString said = QCoreApplication::translate("Help", message);
        switch (match.lastCapturedIndex()) {
        case 0:
            return said;
        case 1:
            return said.arg(match.captured(1));
        case 2:
            return said.arg(match.captured(1), match.captured(2));
        default:
            return said.arg(match.captured(1), match.captured(2), match.captured(3));
        }
    }
    return text;
}
