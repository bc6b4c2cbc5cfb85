// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/dnpchoice.h"
#include "standalone/standalonecdb.h"
#include "standalone/standalonedocument.h"
#include "standalone/standalonenetlist.h"
#include "standalone/standaloneprocess.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace designs {
class Design;
}
class LoadedDesign;

/// The standalone host with one open design. While it lives it is the installed process and component
/// database, so a program makes one at a time.
class DesignSession final
{
public:
    DesignSession();
    DesignSession(const DesignSession &) = delete;
    DesignSession &operator=(const DesignSession &) = delete;
    ~DesignSession();

    /// Opens a design in place of the one that is open; `variant` is empty for the design as drawn. On
    /// failure error() says why and the old design stays open.
    [[nodiscard]] bool open(const QString &path, const QString &variant = {});
    /// Takes over a design that was read elsewhere.
    void open(std::unique_ptr<const designs::Design> design);
    /// "FILE:LINE: what is wrong" of the last open().
    [[nodiscard]] const QString &error() const { return m_error; }

    /// What the reader noticed and went on from, one "FILE:LINE: text" each.
    [[nodiscard]] QStringList warnings() const;
    /// The files that make up the design, absolute.
    [[nodiscard]] QStringList files() const;
    /// The variants that the design defines, sorted.
    [[nodiscard]] QStringList variants() const;

    [[nodiscard]] DnpChoice dnpChoice() const { return m_dnpChoice; }
    /// The caches become stale when the choice changes.
    void setDnpChoice(DnpChoice choice);

    /// Null before a design is open.
    [[nodiscard]] const LoadedDesign *design() const { return m_design.get(); }
    [[nodiscard]] StandaloneNetlist &netlist() { return m_netlist; }
    [[nodiscard]] const StandaloneDocument &document() const { return m_document; }
    [[nodiscard]] StandaloneDocument &document() { return m_document; }
    [[nodiscard]] ProjectNotes &projectNotes() { return m_process.projectNotes(); }

private:
    StandaloneDocument m_document;
    StandaloneNetlist m_netlist;
    StandaloneCdb m_cdb;
    StandaloneProcess m_process;
    std::shared_ptr<LoadedDesign> m_design;
    DnpChoice m_dnpChoice = DnpChoice::Exclude;
    QString m_error;
};
