// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/netcache.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class DesignSession;

/// Something that the status bar counts.
struct StatusCount
{
    /// Such as "57 lines".
    QString text;
    /// What is counted, in a sentence.
    QString tip;

    bool operator==(const StatusCount &) const = default;
};

/// What the module says about its report.
struct ReportStatus
{
    /// Without them the components of the design count.
    std::optional<REPORTCOUNTS> counts;
    /// The lines that join different parts, in words.
    QStringList joinedLines;
};

/// What the status bar says about the design that is open.
struct DesignStatus
{
    /// The most important one first; only lines and parts can be 0.
    QList<StatusCount> counts;
    /// Of edits, where some are pending.
    std::optional<StatusCount> pending;
    /// What the readers noticed, references that occur more than once or have no number, texts with
    /// variables, notes that cannot be read, what is wrong with the user's property definitions, and joined
    /// lines; one line each.
    QStringList warnings;
};

[[nodiscard]] std::optional<StatusCount> pendingCount(const std::optional<REPORTCOUNTS> &report);
[[nodiscard]] DesignStatus designStatus(const DesignSession &session, const ReportStatus &report);
