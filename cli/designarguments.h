// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/dnpchoice.h"
#include "standalone/settleddesign.h"

#include <CLI/App.hpp>

#include <QString>

#include <string>

/// For checking an option: empty for a text, what is wrong with an empty one.
[[nodiscard]] std::string isGiven(const std::string &text);

/// The part of a command line that says which design is read, and how.
struct DesignArguments
{
    std::string design;
    std::string variant;
    std::string dnp = "exclude";
    std::string propdefs;
    std::string templateName;
    /// Names of properties, and headings for them, with commas between.
    std::string fields;
    std::string labels;
    std::string preset;
    /// Whether the command lists parts under a template that is fitted to the design where none is chosen.
    bool isFitted = false;
    bool readsAsIs = false;
    bool hasExactNames = false;

    /// Adds DESIGN and all its options to a command that only reads.
    void addTo(CLI::App &command);
    /// Adds DESIGN only.
    void addDesign(CLI::App &command) { addPath(command, design); }
    static void addPath(CLI::App &command, std::string &design);
    /// Adds what does not depend on parts being listed: the variant and the property definitions.
    void addReading(CLI::App &command);
    /// Adds --as-is.
    void addAsIs(CLI::App &command);
    /// Adds whether names of properties are taken as they are.
    void addNames(CLI::App &command);
    /// Adds what decides which parts are listed, and the template.
    void addListing(CLI::App &command);
    /// Adds the ways to choose columns without a template, after addListing().
    void addColumns(CLI::App &command);

    [[nodiscard]] QString path() const { return QString::fromStdString(design); }
    [[nodiscard]] DnpChoice dnpChoice() const;
    [[nodiscard]] OpenOptions openOptions() const { return {QString::fromStdString(variant), readsAsIs}; }
};
