// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class KEYTRANSLATOR;

/// The keys of the application, and those of a window with a design in it.
constexpr unsigned ACCELERATORS_APPLICATION = 256;
constexpr unsigned ACCELERATORS_DESIGN = 272;

/// Whether a table of keys takes the place of those that a translator has, or comes to them.
constexpr unsigned ACCELERATORS_REPLACE = 0;
constexpr unsigned ACCELERATORS_ADD = 1;

/// The host's own menus and their keys, as a module's window sees them.
class MENUBAR
{
public:
    MENUBAR() = default;
    MENUBAR(const MENUBAR &) = delete;
    MENUBAR &operator=(const MENUBAR &) = delete;

    /// Shows the host's menus of that name around those of the module. The language is a code such as "de".
    /// False when the host has no menus of that name.
    virtual bool loadmenus(const char *name, const QString &language) = 0;
    /// Gives the translator, which may be null, the keys of the commands in one of the host's tables.
    virtual void setaccelerators(KEYTRANSLATOR *translator, unsigned table, unsigned flag) = 0;
    /// Carries out a command of the host's; false for one that it does not know or cannot carry out now.
    virtual bool docommand(unsigned id) = 0;

protected:
    ~MENUBAR() = default;
};
