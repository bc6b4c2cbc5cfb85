// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/console.h"

#include "cli/texts.h"
#include "standalone/environment.h"

#include <QList>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

QString printable(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\n') {
            shown += QStringLiteral("\\n");
        } else if (c == u'\t') {
            shown += QStringLiteral("\\t");
        } else if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
                   c == QChar::ParagraphSeparator) {
            shown += QChar::ReplacementCharacter;
        } else {
            shown += c;
        }
    }
    return shown;
}

namespace {

struct ShownFolder
{
    QString folder;
    QString shown;
};

struct Manners
{
    bool isQuiet = false;
    QList<ShownFolder> folders;
};

Manners &manners()
{
    static Manners chosen;
    return chosen;
}

} // namespace

namespace console {

void message(const QString &text)
{
    const QByteArray line = "bom: " + printable(withShownPaths(text)).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

void notice(const QString &text)
{
    constexpr qsizetype longest = 2000;
    if (!manners().isQuiet) {
        message(text.size() > longest ? text.first(longest) + QStringLiteral("...") : text);
    }
}

void notices(const QStringList &texts)
{
    for (const QString &text : texts) {
        notice(text);
    }
}

void setQuiet(bool isQuiet)
{
    manners().isQuiet = isQuiet;
}

bool isQuiet()
{
    return manners().isQuiet;
}

void showFolderAs(const QString &folder, const QString &shown)
{
    if (folder.size() > 1) {
        manners().folders.append({folder + u'/', shown});
    }
}

QString withShownPaths(const QString &text)
{
    QString shown = text;
    for (const ShownFolder &known : std::as_const(manners().folders)) {
        qsizetype at = 0;
        while ((at = shown.indexOf(known.folder, at)) >= 0) {
            if (at == 0 || shown[at - 1] == u' ' || shown[at - 1] == u'(') {
                shown.replace(at, known.folder.size(), known.shown);
                at += known.shown.size();
            } else {
                ++at;
            }
        }
    }
    return shown;
}

bool write(QByteArrayView bytes)
{
    errno = 0;
    const std::size_t size = std::size_t(bytes.size());
    const bool isTaken = size == 0 || std::fwrite(bytes.data(), 1, size, stdout) == size;
    if (isTaken && std::fflush(stdout) == 0) {
        return true;
    }
    message(CommandLine::tr("standard output: %1").arg(QString::fromLocal8Bit(std::strerror(errno))));
    return false;
}

} // namespace console

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
    console::message(
        CommandLine::tr("%1 No.", "the question, and the answer that the program gives").arg(text));
    return false;
}

HostUi::SaveAnswer CliUi::saveQuestion(QWidget *, const QString &, const QString &text, bool withCancel)
{
    console::message(
        CommandLine::tr("%1 No.", "the question, and the answer that the program gives").arg(text));
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
