// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <stop_token>

/// How a design is opened.
struct OpenOptions
{
    /// Empty for the design as drawn.
    QString variant;
    /// Files that may not belong together, because a write was interrupted, are read all the same.
    bool readsAsIs = false;

    bool operator==(const OpenOptions &) const = default;
};

/// A design, or why there is none.
struct SettledDesign
{
    std::unique_ptr<const designs::Design> design;
    /// "FILE:LINE: text" each: what was done about an interrupted write; and what is left of it, where the
    /// design was read although.
    QStringList notices;
    /// Why there is no design.
    QStringList errors;
};

/// Reads a design whose files belong together: an interrupted write is completed or taken back first, and one
/// that overlaps the reading makes it read again, up to 20 times.
/// A requested stop ends it early, without a design. Any thread may call it.
[[nodiscard]] SettledDesign readSettledDesign(const QString &path, const OpenOptions &options,
                                              const std::stop_token &stop = {});

/// What reads a design once.
using DesignReader =
    std::function<designs::ReadResult(const QString &path, const designs::ReadOptions &options)>;
[[nodiscard]] SettledDesign readSettledDesign(const QString &path, const OpenOptions &options,
                                              const DesignReader &reader);
