// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class MENUBAR;
class QMenu;
class QToolBar;
class QWidget;

/// The host's frame as a module sees it: the place for its menus, its tool bars and its window. What a module
/// adds stays the module's; it removes it before it goes.
class APPLNFRAME
{
public:
    APPLNFRAME() = default;
    APPLNFRAME(const APPLNFRAME &) = delete;
    APPLNFRAME &operator=(const APPLNFRAME &) = delete;
    virtual ~APPLNFRAME() = default;

    /// The host's own menus; null when the frame shows none.
    [[nodiscard]] virtual MENUBAR *getmenubar() { return nullptr; }
    /// Menus stand in the order of their ids, among the frame's own.
    virtual void addmenu(unsigned id, QMenu *menu, unsigned flags) = 0;
    virtual void removemenu(QMenu *menu) = 0;

    virtual void addtoolbar(QToolBar *bar) = 0;
    virtual void removetoolbar(QToolBar *bar) = 0;

    /// Shows a widget in the frame's document area, in place of the one that is there.
    virtual void setwidget(QWidget *widget) = 0;
    virtual void removewidget(QWidget *widget) = 0;

    virtual void settitle(const QString &title) = 0;
    virtual void setstatustext(const QString &text) = 0;
    /// Whether the module's window holds something that is not saved.
    virtual void setmodified(bool) {}

    /// One of the WINDOW_ states.
    virtual void showframe(unsigned state) = 0;
    /// Whether the user can see it: neither hidden nor minimised.
    [[nodiscard]] virtual bool isframevisible() const = 0;
};
