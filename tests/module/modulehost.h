// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnframe.h"
#include "host/framework/applnmodule.h"
#include "host/framework/applnprocess.h"
#include "host/framework/imodule.h"
#include "host/framework/menubar.h"
#include "support/fakedocument.h"
#include "support/fakenetlist.h"

#include <QMainWindow>
#include <QMenu>
#include <QStringList>
#include <QTemporaryDir>
#include <QToolBar>

#include <functional>

using namespace Qt::StringLiterals;

/// A netlist server that notes what it is asked for.
class ModuleServer final : public INETSERVER
{
public:
    FakeNetlist netlist;
    bool canSend = true;
    int context = 0;
    int detail = 0;
    NETCACHE *cache = nullptr;
    /// Run inside sendnetlist() and removecache().
    std::function<void()> onSend;
    std::function<void()> onRemove;

    IMODULE *queryinterface(unsigned) override { return this; }
    bool sendnetlist(NETCACHE &target, int askedContext, int askedDetail) override
    {
        context = askedContext;
        detail = askedDetail;
        if (onSend) {
            onSend();
        }
        if (canSend) {
            static_cast<NETLIST &>(target) = *netlist.cache();
        }
        return canSend;
    }
    void addcache(NETCACHE *added) override { cache = added; }
    void removecache(NETCACHE *) override
    {
        cache = nullptr;
        if (onRemove) {
            onRemove();
        }
    }
};

/// The host's menus, which note what is asked of them.
class ModuleMenuBar final : public MENUBAR
{
public:
    QStringList calls;

    bool loadmenus(const char *name, const QString &language) override
    {
        calls << QLatin1String(name) + u' ' + language;
        return true;
    }
    void setaccelerators(KEYTRANSLATOR *keys, unsigned table, unsigned flag) override
    {
        calls << u"%1 %2"_s.arg(table).arg(flag);
        keys->setcommand(QKeyCombination(Qt::CTRL, Qt::Key_O).toCombined(), 7);
    }
    bool docommand(unsigned id) override
    {
        calls << u"command %1"_s.arg(id);
        return true;
    }
};

/// A frame that notes what is put into it.
class ModuleFrame final : public APPLNFRAME
{
public:
    QMainWindow window;
    QMap<unsigned, QMenu *> menus;
    QList<QToolBar *> bars;
    int widgets = 0;
    unsigned state = WINDOW_HIDDEN;
    QString statusText;
    bool isModified = false;
    ModuleMenuBar menuBar;

    MENUBAR *getmenubar() override { return &menuBar; }
    void setmodified(bool modified) override { isModified = modified; }

    void addmenu(unsigned id, QMenu *menu, unsigned) override { menus[id] = menu; }
    void removemenu(QMenu *menu) override { menus.remove(menus.key(menu)); }
    void addtoolbar(QToolBar *bar) override { bars << bar; }
    void removetoolbar(QToolBar *bar) override { bars.removeAll(bar); }
    void setwidget(QWidget *widget) override
    {
        ++widgets;
        window.setCentralWidget(widget);
    }
    void removewidget(QWidget *widget) override
    {
        --widgets;
        widget->setParent(nullptr);
    }
    void settitle(const QString &) override {}
    void setstatustext(const QString &text) override { statusText = text; }
    void showframe(unsigned wanted) override
    {
        state = wanted;
        window.setVisible(wanted != WINDOW_HIDDEN);
    }
    bool isframevisible() const override { return window.isVisible(); }
};

/// A host with a schematic application, a project and a frame; installed while it lives.
class ModuleHost final : public APPLNPROCESS, public IPROJECT
{
public:
    ModuleHost() { setapplnprocess(this); }
    ~ModuleHost() override { setapplnprocess(nullptr); }

    mutable FakeDocument design;
    ModuleServer server;
    ModuleFrame frame;
    bool hasServer = true;
    bool hasProject = true;
    QTemporaryDir data;
    /// Run inside the question for the project.
    std::function<void()> onProject;

    APPLNDOCUMENT *currentdocument(int, const char *) const override { return &design; }
    APPLNOBJECT *currentobject(const char *, int) override { return nullptr; }
    QString helpFolder;

    QString gethelppath(const QString &) const override { return helpFolder; }
    QToolBar *createctrlbar(APPLNWINDOW *) override { return new QToolBar(u"Host"_s); }
    QString getbinpath() const override { return u"/opt/host/bin"_s; }
    QString getdatapath(const char *) const override { return data.path(); }
    APPLNFRAME *getframe(APPLNMODULE *) override { return &frame; }
    IMODULE *getmoduleinterface(const char *application, unsigned id) override
    {
        if (!application && id == INTERFACE_PROJECT) {
            if (onProject) {
                onProject();
            }
            return hasProject ? static_cast<IPROJECT *>(this) : nullptr;
        }
        if (QByteArrayView(application) == "ORIN" && id == INTERFACE_NETSERVER) {
            return hasServer ? &server : nullptr;
        }
        APPLNMODULE *module = findmodule(application);
        return module ? module->queryinterface(id) : nullptr;
    }
    IMODULE *queryinterface(unsigned) override { return nullptr; }
    APPLNDOCUMENT *getprojectdocument() override { return &design; }
};
