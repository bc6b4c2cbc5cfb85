// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class APPLNMODULE;

/// The state of a command in menus and on tool bars, in any combination.
constexpr unsigned UISTATE_DISABLED = 0;
constexpr unsigned UISTATE_ENABLED = 1;
constexpr unsigned UISTATE_CHECKED = 2;

/// Something that carries out commands.
class ICMDTARGET
{
public:
    /// The module that commands are carried out in.
    [[nodiscard]] virtual APPLNMODULE *getapplncontext() = 0;
    /// False for a command that it does not know.
    virtual bool docommand(unsigned id) = 0;
    [[nodiscard]] virtual unsigned getuistate(unsigned id) const = 0;

protected:
    ICMDTARGET() = default;
    ICMDTARGET(const ICMDTARGET &) = default;
    ICMDTARGET &operator=(const ICMDTARGET &) = default;
    ~ICMDTARGET() = default;
};
