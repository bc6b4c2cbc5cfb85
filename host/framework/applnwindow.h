// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class APPLNFRAME;
class APPLNMODULE;

/// How a window is shown.
constexpr unsigned WINDOW_HIDDEN = 0;
constexpr unsigned WINDOW_NORMAL = 1;
constexpr unsigned WINDOW_MINIMISED = 2;
constexpr unsigned WINDOW_MAXIMISED = 3;

/// A window of a module inside a frame of the host.
class APPLNWINDOW
{
public:
    APPLNWINDOW() = default;
    APPLNWINDOW(const APPLNWINDOW &) = delete;
    APPLNWINDOW &operator=(const APPLNWINDOW &) = delete;
    /// Leaves the module's list of windows.
    virtual ~APPLNWINDOW();

    /// Enters the module's list of windows, and leaves the one it was in; null for none.
    void setowner(APPLNMODULE *module);
    [[nodiscard]] APPLNMODULE *getowner() const { return m_owner; }

    /// Builds the window inside the frame, which must outlive it. False when it cannot be built.
    virtual bool createwindow(APPLNFRAME *frame) = 0;
    /// Whether the user can see it.
    [[nodiscard]] virtual bool isvisible() const = 0;
    /// One of the WINDOW_ states.
    virtual void showwindow(unsigned state) = 0;
    /// Shows anew what the window shows.
    virtual void updatewindow() = 0;

    /// Whether the window agrees to be closed; it may ask the user.
    [[nodiscard]] virtual bool canbeclosed() { return true; }

private:
    friend class APPLNMODULE;
    APPLNMODULE *m_owner = nullptr;
};
