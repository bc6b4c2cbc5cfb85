// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/userlanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace {

/// What translates the texts of the process; of several that live, the first.
UserLanguage *theLanguage = nullptr;

/// Whether the environment asks for the messages that every machine gives.
bool asksForPlainMessages()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty()) {
            return name == "C" || name.startsWith("C.") || name == "POSIX";
        }
    }
    return false;
}

/// Null when there are no such texts.
std::unique_ptr<QTranslator> loaded(const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    return translator->load(name, folder) ? std::move(translator) : nullptr;
}

} // namespace

UserLanguage::UserLanguage()
{
    const QString language = preferred();
    if (language.isEmpty() || theLanguage || !QCoreApplication::instance()) {
        return;
    }
    m_texts = loaded(QStringLiteral("bom_") + language, QStringLiteral(":/bom/translations"));
    m_qtTexts =
        loaded(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (m_texts) {
        theLanguage = this;
        install();
    }
}

UserLanguage::~UserLanguage()
{
    if (theLanguage == this) {
        theLanguage = nullptr;
    }
}

void UserLanguage::install() const
{
    // The last one is asked first.
    for (QTranslator *translator : {m_qtTexts.get(), m_texts.get()}) {
        if (translator) {
            QCoreApplication::installTranslator(translator);
        }
    }
}

void UserLanguage::remove() const
{
    for (QTranslator *translator : {m_qtTexts.get(), m_texts.get()}) {
        if (translator) {
            QCoreApplication::removeTranslator(translator);
        }
    }
}

QString UserLanguage::preferred()
{
    if (asksForPlainMessages()) {
        return {};
    }
    const QStringList known{QStringLiteral("de"), QStringLiteral("en")};
    for (const QString &name : QLocale::system().uiLanguages()) {
        const QString language = name.section(u'-', 0, 0);
        if (known.contains(language)) {
            return language == QStringLiteral("en") ? QString() : language;
        }
    }
    return {};
}

QTranslator *UserLanguage::translator()
{
    return theLanguage ? theLanguage->m_texts.get() : nullptr;
}

PlainLanguage::PlainLanguage()
{
    if (theLanguage) {
        theLanguage->remove();
    }
}

PlainLanguage::~PlainLanguage()
{
    if (theLanguage) {
        theLanguage->install();
    }
}
