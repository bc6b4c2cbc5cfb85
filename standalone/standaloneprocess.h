// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnprocess.h"
#include "host/framework/imodule.h"
#include "standalone/partnavigator.h"
#include "standalone/projectnotes.h"

#include <functional>

class StandaloneDocument;
class StandaloneNetlist;

/// The process of the standalone host: at most one design is open.
class StandaloneProcess final : public APPLNPROCESS
{
public:
    /// Both must outlive the process.
    StandaloneProcess(StandaloneDocument &document, StandaloneNetlist &netlist);

    void setOpen(bool isOpen) { m_isOpen = isOpen; }

    /// The open design when it is asked for without a name, or by its file name.
    [[nodiscard]] APPLNDOCUMENT *currentdocument(int kind, const char *name) const override;
    /// "PROJNOTES", when a design is open and there are such notes.
    [[nodiscard]] APPLNOBJECT *currentobject(const char *name, int kind) override;
    [[nodiscard]] ProjectNotes &projectNotes() { return m_projectNotes; }
    [[nodiscard]] PartNavigator &navigator() { return m_navigator; }
    [[nodiscard]] QString getbinpath() const override;
    /// The templates stand in the folder of "BOM".
    [[nodiscard]] QString getdatapath(const char *application) const override;
    /// The user's folder, and one with further templates where there is one.
    [[nodiscard]] QString gettemplatepaths() const override;
    void setFurtherTemplates(const QString &folder) { m_furtherTemplates = folder; }
    /// The guide is installed beside the programs.
    [[nodiscard]] QString gethelppath(const QString &application) const override;
    /// The application "ORIN" offers the netlist server and the navigator, no application in particular the
    /// project, and every module that lives in the process its own interfaces.
    [[nodiscard]] IMODULE *getmoduleinterface(const char *application, unsigned id) override;

    /// Makes the bar of controls that a module's window gets. Without one it gets none.
    void setControlBars(const std::function<QToolBar *()> &make) { m_project.setControlBars(make); }

    /// The frame for the windows of all modules; null, as at first, for none. Not owned.
    void setFrame(APPLNFRAME *frame) { m_frame = frame; }
    [[nodiscard]] APPLNFRAME *getframe(APPLNMODULE *) override { return m_frame; }

private:
    /// The open design is the project's document.
    class Project final : public IPROJECT
    {
    public:
        explicit Project(StandaloneDocument &document)
            : m_document(document)
        {
        }
        Project(const Project &) = delete;
        Project &operator=(const Project &) = delete;
        virtual ~Project() = default;
        IMODULE *queryinterface(unsigned id) override;
        [[nodiscard]] APPLNDOCUMENT *getprojectdocument() override;
        [[nodiscard]] QToolBar *createctrlbar(APPLNWINDOW *) override;
        void setControlBars(const std::function<QToolBar *()> &make) { m_makeBar = make; }

    private:
        StandaloneDocument &m_document;
        std::function<QToolBar *()> m_makeBar;
    };

    StandaloneDocument &m_document;
    StandaloneNetlist &m_netlist;
    ProjectNotes m_projectNotes;
    Project m_project;
    PartNavigator m_navigator;
    QString m_furtherTemplates;
    APPLNFRAME *m_frame = nullptr;
    bool m_isOpen = false;
};
