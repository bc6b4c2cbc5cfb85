// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console.h"
#include "cli/designarguments.h"
#include "core/bompartsdatabase.h"
#include "host/netlist/netcache.h"
#include "standalone/designsession.h"

/// Opens the design that a command line names in the session; prints what is wrong.
[[nodiscard]] ExitStatus openSession(DesignSession &session, const QString &named,
                                     const OpenOptions &options);

/// A design that was opened for a command, with its parts database under the template that was asked for.
class OpenDesign final
{
public:
    explicit OpenDesign(const QLocale &locale = QLocale::c())
        : m_ui(locale)
    {
    }

    /// Opens it; prints what is wrong, and with `printsWarnings` what the reader noticed. A command that
    /// reads the board prints the warnings itself, later.
    [[nodiscard]] ExitStatus open(const DesignArguments &arguments, bool printsWarnings);

    [[nodiscard]] DesignSession &session() { return m_session; }
    [[nodiscard]] const LoadedDesign &design() const { return *m_session.design(); }
    [[nodiscard]] BOMPartsDatabase &database() { return m_database; }
    /// Which template was taken where none was named, and why; empty otherwise.
    [[nodiscard]] const QString &templateReason() const { return m_templateReason; }
    /// What of the project's settings for its bill cannot be followed, one sentence each.
    [[nodiscard]] const QStringList &fittingNotices() const { return m_fittingNotices; }

private:
    [[nodiscard]] bool loadDefinitions(const QString &path);
    [[nodiscard]] std::optional<BOMTemplate> fitTemplate(const DesignArguments &arguments);
    void fillDatabase(const BOMTemplate &settings);

    // In this order: the cache leaves the session's server, the database reads from the cache.
    CliUi m_ui;
    DesignSession m_session;
    NETCACHE m_cache;
    BOMPartsDatabase m_database;
    QString m_templateReason;
    QStringList m_fittingNotices;
};
