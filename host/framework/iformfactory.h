// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QObject;
class QTranslator;

/// Where the host gets dialogs from that a module describes by name.
class IFORMFACTORY
{
public:
    /// The description of a form; empty for one that the module does not have.
    [[nodiscard]] virtual QByteArray getdialogform(const char *name) = 0;
    /// Who handles what happens in a form; null when the form does so itself.
    [[nodiscard]] virtual QObject *getdialogcbf(const char *name) = 0;
    /// A control of a kind that only the module knows; null for any other.
    [[nodiscard]] virtual QObject *getdialogctrl(const char *type, QObject *parent) = 0;
    [[nodiscard]] virtual QByteArray getdialogctrltypename(unsigned type) = 0;
    /// Translates the texts of forms, in getstringcontext(); null when they are in the user's language.
    [[nodiscard]] virtual QTranslator *getstringtranslator() = 0;
    [[nodiscard]] virtual QString getstringcontext() const = 0;

protected:
    IFORMFACTORY() = default;
    IFORMFACTORY(const IFORMFACTORY &) = default;
    IFORMFACTORY &operator=(const IFORMFACTORY &) = default;
    ~IFORMFACTORY() = default;
};
