// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>

#include <QLocale>

#include <optional>
#include <string>

/// The option that says in which format numbers are.
struct LocaleOption
{
    std::string name;

    void addTo(CLI::App &command, const char *description);

    /// Nothing, after a message, for a name that is no locale.
    [[nodiscard]] std::optional<QLocale> locale() const;
};
