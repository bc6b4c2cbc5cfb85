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
QTranslator *theTranslator = nullptr;

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
std::unique_ptr<QTranslator> installed(const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    const bool isInstalled =
        translator->load(name, folder) && QCoreApplication::installTranslator(translator.get());
    return isInstalled ? std::move(translator) : nullptr;
}

} // namespace

UserLanguage::UserLanguage()
{
    const QString language = preferred();
    if (language.isEmpty() || theTranslator || !QCoreApplication::instance()) {
        return;
    }
    m_qtTexts =
        installed(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // Asked first, as it was installed last.
    m_texts = installed(QStringLiteral("bom_") + language, QStringLiteral(":/bom/translations"));
    theTranslator = m_texts.get();
}

UserLanguage::~UserLanguage()
{
    if (m_texts) {
        theTranslator = nullptr;
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
    return theTranslator;
}
