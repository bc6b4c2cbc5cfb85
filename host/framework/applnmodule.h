// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/keytranslator.h"
#include "host/framework/moduleinterfaces.h"

#include <QHash>
#include <QList>

class APPLNPROCESS;
class QToolBar;

/// How a window is shown.
constexpr unsigned WINDOW_HIDDEN = 0;
constexpr unsigned WINDOW_NORMAL = 1;
constexpr unsigned WINDOW_MINIMISED = 2;
constexpr unsigned WINDOW_MAXIMISED = 3;

/// Where a control bar stands: its row, counted from the window's edge, and the edge.
constexpr unsigned CTRLBAR_FIRST_ROW = 0;
constexpr unsigned CTRLBAR_TOP = 2;

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
    /// Takes the window out of its frame, with all that it has put there. The object stays.
    virtual void destroywindow() {}

    /// Puts a bar of the host's controls beside the window, which takes ownership. Null is ignored.
    virtual void addctrlbar(QToolBar *bar, unsigned row, unsigned edge) = 0;
    /// The keys of its module; null without one.
    [[nodiscard]] KEYTRANSLATOR *getkeytranslator() const;

    /// Called when the window becomes the one that the user works in, and when it ceases to be that.
    virtual void onactivate(bool isActive) { m_isActive = isActive; }
    [[nodiscard]] bool isactive() const { return m_isActive; }

    /// Whether the window agrees to be closed; it may ask the user.
    [[nodiscard]] virtual bool canbeclosed() { return true; }

private:
    friend class APPLNMODULE;
    APPLNMODULE *m_owner = nullptr;
    bool m_isActive = false;
};

/// The base of a module: its names, its windows and its place in the process. Whatever a module does not
/// override means "nothing of that kind here".
class APPLNMODULE : public IWINDOWMODULE, public ICMDTARGET, public IFORMFACTORY, public IPALETTE
{
public:
    /// Enters the process's list of modules. The process must outlive the module; null for none.
    explicit APPLNMODULE(APPLNPROCESS *process);
    APPLNMODULE(const APPLNMODULE &) = delete;
    APPLNMODULE &operator=(const APPLNMODULE &) = delete;
    virtual ~APPLNMODULE();

    [[nodiscard]] APPLNPROCESS *getapplnprocess() const { return m_process; }
    void setmoduleinstance(void *instance) { m_instance = instance; }

    IMODULE *queryinterface(unsigned id) override;

    /// The first of the windows.
    [[nodiscard]] APPLNWINDOW *getprimarywindow() override;
    void showprimarywindow() override;
    void setapplnname(const QString &name, const QString &title) override;
    [[nodiscard]] QString getapplnname() const override { return m_name; }
    [[nodiscard]] QString getapplntitle() const override { return m_title; }
    [[nodiscard]] std::span<const CMDINFO> getcmdinfotable() const override { return {}; }
    [[nodiscard]] KEYTRANSLATOR *getkeytranslator() override { return &m_keys; }
    [[nodiscard]] void *getmoduleinstance() const override { return m_instance; }
    /// The module's name.
    [[nodiscard]] QString getregistrykey() const override { return m_name; }
    void pushcontext() override;
    void popcontext() override;
    bool system_init() override { return true; }
    void system_term() override {}
    bool loadcmdinfo() override { return true; }
    bool loadcbftable() override { return true; }
    bool loadconfig() override { return true; }
    bool saveconfig() override { return true; }
    void resetsettings() override {}
    void loadsettings() override {}
    void savesettings() override {}
    /// Calls onfirstrun() when the host's settings do not say that it ever ran.
    bool run() override;
    bool load() override;
    void pumpmessages() override;
    /// Opens a page of the help that the host has for the module, in the language of its texts where there
    /// is such a page; without a topic the first one.
    bool launchhelp(const QString &topic) override;
    void setinterface(unsigned id, IMODULE *object) override;
    APPLNWINDOW *createwindow(APPLNFRAME *frame, unsigned flags) override;
    void showprimarywindow(unsigned state) override;
    void restorewindow(APPLNWINDOW *window) override;
    void addwindow(APPLNWINDOW *window) override;
    void removewindow(APPLNWINDOW *window) override;
    void updatewindows() override;
    bool onidle() override { return false; }
    bool onwantkey(int key) override;
    bool oncommand(unsigned id) override;
    void onvalidate() override {}
    void onfirstrun() override {}

    [[nodiscard]] APPLNMODULE *getapplncontext() override { return this; }
    bool docommand(unsigned id) override { return oncommand(id); }
    /// Enabled for the commands of the table.
    [[nodiscard]] unsigned getuistate(unsigned id) const override;

    [[nodiscard]] QByteArray getdialogform(const char *name) override;
    [[nodiscard]] QObject *getdialogcbf(const char *name) override;
    [[nodiscard]] QObject *getdialogctrl(const char *type, QObject *parent) override;
    [[nodiscard]] QByteArray getdialogctrltypename(unsigned type) override;
    [[nodiscard]] QTranslator *getstringtranslator() override { return nullptr; }
    /// The module's name.
    [[nodiscard]] QString getstringcontext() const override { return m_name; }

    [[nodiscard]] std::optional<quint32> getcolour(unsigned index) const override;

private:
    friend class APPLNWINDOW;
    void forgetwindow(APPLNWINDOW *window) { m_windows.removeOne(window); }

    APPLNPROCESS *m_process;
    void *m_instance = nullptr;
    QString m_name;
    QString m_title;
    KEYTRANSLATOR m_keys;
    /// In the order in which they were added.
    QList<APPLNWINDOW *> m_windows;
    QHash<unsigned, IMODULE *> m_interfaces;
};

/// The code of the language that a module's texts are in, such as "de"; "en" for those of the sources.
[[nodiscard]] QString getapplnlanguageinstance(APPLNMODULE *module);

/// The two functions that a module's library exports under these names. The instance belongs to the library:
/// it is deleted by the function that stands beside the one that made it.
constexpr const char *MODULE_CREATE = "createmoduleinstance";
constexpr const char *MODULE_DELETE = "deletemoduleinstance";
using CREATEMODULEINSTANCE = APPLNMODULE *(*)(APPLNPROCESS *process);
using DELETEMODULEINSTANCE = void (*)(APPLNMODULE *module);
