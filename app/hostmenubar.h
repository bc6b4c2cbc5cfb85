// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/menubar.h"

class ProgramMenus;

/// The program's menus as a module sees them. A command's number is its place in the list of those with keys,
/// from 1 on.
class HostMenuBar final : public MENUBAR
{
public:
    explicit HostMenuBar(ProgramMenus &menus)
        : m_menus(menus)
    {
    }

    HostMenuBar(const HostMenuBar &) = delete;
    HostMenuBar &operator=(const HostMenuBar &) = delete;
    virtual ~HostMenuBar() = default;

    /// There are only those that always stand in the window, in the user's language.
    bool loadmenus(const char *name, const QString &language) override;
    void setaccelerators(KEYTRANSLATOR *translator, unsigned table, unsigned flag) override;
    bool docommand(unsigned id) override;

private:
    ProgramMenus &m_menus;
};
