// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/manualpage.h"

#include "standalone/environment.h"

#include <QDate>
#include <QDateTime>

namespace {

QString escaped(QString text)
{
    text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    if (text.startsWith(u'.') || text.startsWith(u'\'')) {
        text.prepend(QStringLiteral("\\&"));
    }
    text.replace(QStringLiteral("\n."), QStringLiteral("\n\\&."));
    return text;
}

QString inQuotes(const QString &text)
{
    return u'"' + escaped(text).replace(u'"', QStringLiteral("\\(dq")) + u'"';
}

} // namespace

ManualPage::ManualPage(const QString &program, const QString &version)
{
    const QDate date = sourceDateEpoch().value_or(QDateTime::currentDateTimeUtc()).date();
    m_text = QStringLiteral(".TH ") + program.toUpper() + QStringLiteral(" 1 ") + date.toString(Qt::ISODate) +
             u' ' + inQuotes(version) + QStringLiteral(" \"User Commands\"\n");
}

void ManualPage::section(const QString &heading)
{
    m_text += QStringLiteral(".SH ") + inQuotes(heading) + u'\n';
}

void ManualPage::subsection(const QString &heading)
{
    m_text += QStringLiteral(".SS ") + inQuotes(heading) + u'\n';
}

void ManualPage::paragraph(const QString &text)
{
    m_text += escaped(text) + u'\n';
}

void ManualPage::usage(const QString &program, const QString &arguments)
{
    m_text += QStringLiteral(".B ") + escaped(program) + u'\n' + escaped(arguments) + u'\n';
}

void ManualPage::reference(const QString &program)
{
    m_text += QStringLiteral(".BR ") + escaped(program) + QStringLiteral(" (1)\n");
}

void ManualPage::entry(const QString &term, const QString &value, const QString &text)
{
    m_text +=
        QStringLiteral(".TP\n\\fB") + escaped(term) + QStringLiteral("\\fR") +
        (value.isEmpty() ? QString() : QStringLiteral(" \\fI") + escaped(value) + QStringLiteral("\\fR")) +
        u'\n' + escaped(text) + u'\n';
}

void ManualPage::example(const QString &lines)
{
    m_text += QStringLiteral(".nf\n") + escaped(lines) + QStringLiteral("\n.fi\n");
}
