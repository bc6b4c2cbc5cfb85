// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/imodule.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

class APPLNFRAME;
class APPLNMODULE;
class APPLNWINDOW;
class KEYTRANSLATOR;
class QObject;
class QTranslator;

// The interfaces that APPLNMODULE is made of.

/// A command of a module by its number.
struct CMDINFO
{
    unsigned id = 0;
    const char *name = nullptr;
};

/// What a host can ask of a module that has windows.
class IWINDOWMODULE : public IMODULE
{
public:
    /// The window that stands for the module; null while it has none.
    [[nodiscard]] virtual APPLNWINDOW *getprimarywindow() = 0;
    /// Shows it, in front; has the host make it first where there is none.
    virtual void showprimarywindow() = 0;

    /// The short name by which others find the module, and its title for people.
    virtual void setapplnname(const QString &name, const QString &title) = 0;
    [[nodiscard]] virtual QString getapplnname() const = 0;
    [[nodiscard]] virtual QString getapplntitle() const = 0;

    [[nodiscard]] virtual std::span<const CMDINFO> getcmdinfotable() const = 0;
    /// The keys that stand for commands of the host, see MENUBAR::setaccelerators(); null for none.
    [[nodiscard]] virtual KEYTRANSLATOR *getkeytranslator() = 0;
    /// What the operating system knows the module's library by; null for a module that is in no library.
    [[nodiscard]] virtual void *getmoduleinstance() const = 0;
    /// The group of the host's settings that holds the module's.
    [[nodiscard]] virtual QString getregistrykey() const = 0;

    /// Makes the module the process's current one, and the one before it again. Every entry from outside is
    /// bracketed by them.
    virtual void pushcontext() = 0;
    virtual void popcontext() = 0;

    /// Called before anything is loaded, and after everything is gone. False: the module cannot run.
    virtual bool system_init() = 0;
    virtual void system_term() = 0;

    /// The steps of load().
    virtual bool loadcmdinfo() = 0;
    virtual bool loadcbftable() = 0;
    virtual bool loadconfig() = 0;
    virtual bool saveconfig() = 0;

    virtual void resetsettings() = 0;
    virtual void loadsettings() = 0;
    virtual void savesettings() = 0;

    /// Initialises, loads and shows the module; false when a step of it failed.
    virtual bool run() = 0;
    virtual bool load() = 0;
    /// Lets events that wait be handled.
    virtual void pumpmessages() = 0;
    /// Shows help on a topic; false when there is none.
    virtual bool launchhelp(const QString &topic) = 0;

    /// Has queryinterface() answer a number with an object that stands elsewhere; null takes it away.
    virtual void setinterface(unsigned id, IMODULE *object) = 0;

    /// The module's window inside the frame, made if need be. Null for a module without windows.
    virtual APPLNWINDOW *createwindow(APPLNFRAME *frame, unsigned flags) = 0;
    /// Shows the primary window, where there is one, in one of the WINDOW_ states.
    virtual void showprimarywindow(unsigned state) = 0;
    virtual void restorewindow(APPLNWINDOW *window) = 0;
    virtual void addwindow(APPLNWINDOW *window) = 0;
    /// The host gives the window up.
    virtual void removewindow(APPLNWINDOW *window) = 0;
    virtual void updatewindows() = 0;

    /// True when there is more to do in idle time.
    virtual bool onidle() = 0;
    /// Whether the module takes a key or a command away from the host.
    virtual bool onwantkey(int key) = 0;
    virtual bool oncommand(unsigned id) = 0;
    /// The design may have changed: whatever is stale is to be read again.
    virtual void onvalidate() = 0;
    /// The user runs the module for the first time.
    virtual void onfirstrun() = 0;

protected:
    ~IWINDOWMODULE() = default;
};

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

/// Colours by number.
class IPALETTE
{
public:
    /// As 0xRRGGBB; nothing for a number that the palette leaves to the desktop.
    [[nodiscard]] virtual std::optional<quint32> getcolour(unsigned index) const = 0;

protected:
    IPALETTE() = default;
    IPALETTE(const IPALETTE &) = default;
    IPALETTE &operator=(const IPALETTE &) = default;
    ~IPALETTE() = default;
};
