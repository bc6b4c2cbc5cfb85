// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnprocess.h"
#include "standalone/projectnotes.h"

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
    [[nodiscard]] QString getbinpath() const override;
    /// The templates stand in the folder of "BOM".
    [[nodiscard]] QString getdatapath(const char *application) const override;
    /// The application "ORIN" offers the netlist server.
    [[nodiscard]] IMODULE *getmoduleinterface(const char *application, unsigned id) override;

private:
    StandaloneDocument &m_document;
    StandaloneNetlist &m_netlist;
    ProjectNotes m_projectNotes;
    bool m_isOpen = false;
};
