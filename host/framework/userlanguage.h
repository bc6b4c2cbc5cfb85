// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QTranslator;

/// Has the texts of the process appear in the language of the user for as long as it lives: those of the
/// program, which are linked into it, and those of Qt where they are installed. Needs an application to do
/// so. Nothing is loaded where the user reads English.
class UserLanguage final
{
public:
    UserLanguage();
    UserLanguage(const UserLanguage &) = delete;
    UserLanguage &operator=(const UserLanguage &) = delete;
    ~UserLanguage();

    /// The language that there are texts in and that the user likes best, such as "de"; empty for English. As
    /// for other programs it comes from LANGUAGE, LC_ALL, LC_MESSAGES and LANG; C asks for English whatever
    /// LANGUAGE says.
    [[nodiscard]] static QString preferred();
    /// What translates the program's texts now; null while they are in English.
    [[nodiscard]] static QTranslator *translator();

private:
    friend class PlainLanguage;
    void install() const;
    void remove() const;

    std::unique_ptr<QTranslator> m_qtTexts;
    std::unique_ptr<QTranslator> m_texts;
};

/// The program's texts are in English while it lives: for what other programs read.
class PlainLanguage final
{
public:
    PlainLanguage();
    PlainLanguage(const PlainLanguage &) = delete;
    PlainLanguage &operator=(const PlainLanguage &) = delete;
    ~PlainLanguage();
};
