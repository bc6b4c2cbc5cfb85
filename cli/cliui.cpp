// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/cliui.h"

#include "cli/console.h"
#include "standalone/environment.h"

CliUi::CliUi(const QLocale &locale)
    : m_locale(locale)
{
    install(this);
}

CliUi::~CliUi()
{
    install(nullptr);
}

void CliUi::information(QWidget *, const QString &, const QString &text)
{
    console::message(text);
}

void CliUi::warning(QWidget *, const QString &title, const QString &text)
{
    console::message(title + QStringLiteral(": ") + text);
}

bool CliUi::question(QWidget *, const QString &, const QString &text, bool)
{
    console::message(text + QStringLiteral(" No."));
    return false;
}

HostUi::SaveAnswer CliUi::saveQuestion(QWidget *, const QString &, const QString &text, bool withCancel)
{
    console::message(text + QStringLiteral(" No."));
    return withCancel ? SaveAnswer::Cancel : SaveAnswer::Discard;
}

QString CliUi::saveFileName(QWidget *, const QString &, const QString &, const QString &)
{
    return {};
}

QString CliUi::openFileName(QWidget *, const QString &, const QString &, const QString &)
{
    return {};
}

bool CliUi::openUrl(const QUrl &)
{
    return false;
}

QDateTime CliUi::now() const
{
    return sourceDateEpoch().value_or(QDateTime::currentDateTime());
}
