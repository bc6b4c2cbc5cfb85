// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/localeoption.h"

#include "cli/console.h"
#include "cli/texts.h"

void LocaleOption::addTo(CLI::App &command, const char *description)
{
    command.add_option("--locale", name, description)->type_name("NAME");
}

std::optional<QLocale> LocaleOption::locale() const
{
    const QString wanted = QString::fromStdString(name);
    const QLocale locale(wanted);
    if (wanted.isEmpty() || wanted == QStringLiteral("C") || wanted == QStringLiteral("POSIX")) {
        return QLocale::c();
    }
    if (locale.language() == QLocale::C) {
        constexpr qsizetype longestName = 40;
        console::message(CommandLine::tr("unknown locale \"%1\"").arg(wanted.left(longestName)));
        return std::nullopt;
    }
    return locale;
}
