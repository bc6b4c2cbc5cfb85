// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnmodule.h"
#include "host/framework/userlanguage.h"
#include "host/netlist/netcache.h"
#include "module/ibomviewer.h"

#include <functional>
#include <memory>
#include <optional>

class BOMMainWindow;
class BOMPartsDatabase;
class ModuleTemplates;
class PendingUndo;
class PropertyAssignments;

/// The module "BOM": binds the parts database to the design that is open in the host, and has one window. A
/// process has one of them at a time.
class BOMVIEWER final : public APPLNMODULE, public IBOMVIEWER
{
public:
    /// Finds the netlist server and the project through the process; does without those that are not there.
    explicit BOMVIEWER(APPLNPROCESS *process);
    /// The main window is the host's to remove.
    ~BOMVIEWER() override;

    /// The module of this library; null while there is none.
    [[nodiscard]] static BOMVIEWER *instance();

    IMODULE *queryinterface(unsigned id) override;

    /// The main window, built and filled at the first request and at the first one after it was removed.
    /// Null without a frame.
    APPLNWINDOW *createwindow(APPLNFRAME *frame, unsigned flags) override;
    /// The main window is deleted when the event loop gets to it.
    void removewindow(APPLNWINDOW *window) override;
    void onvalidate() override;
    /// The module's own or, where the host has the texts already, the host's.
    [[nodiscard]] QTranslator *getstringtranslator() override { return UserLanguage::translator(); }

    [[nodiscard]] bool isvisible() override;
    [[nodiscard]] bool isbusy() const override;
    [[nodiscard]] std::optional<REPORTCOUNTS> reportcounts() const override;
    void setreportlistener(const std::function<void(bool isReport)> &listener) override;
    [[nodiscard]] QList<UNWRITTENEDITS> unwrittenedits() const override;
    [[nodiscard]] QStringList differinglines(const QStringList &always,
                                             const QStringList &whereFilled) const override;
    /// Nothing while the database writes. Without `reload` the database stays empty and silent until the next
    /// call with it.
    void designChanged(bool reload) override;
    void show() override;

private:
    void connectProject();
    void connectReportListener();

    /// Before all that has texts; the library may be unloaded when the module is gone.
    UserLanguage m_language;
    NETCACHE m_cache;
    BOMPartsDatabase *m_database = nullptr;
    /// Pending edits outlive windows. Made before any view, so that edits follow their parts first.
    std::unique_ptr<PropertyAssignments> m_assignments;
    std::unique_ptr<PendingUndo> m_undo;
    BOMMainWindow *m_mainWindow = nullptr;
    std::unique_ptr<ModuleTemplates> m_templates;
    std::function<void(bool isReport)> m_reportListener;
};
