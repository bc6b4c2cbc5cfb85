// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/designarguments.h"
#include "cli/localeoption.h"
#include "standalone/designwriter.h"

#include <CLI/App.hpp>

#include <QList>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class DesignEdits;
class OpenDesign;

/// The part of a command line that says which design is changed, and how.
struct WriteArguments
{
    DesignArguments design;
    LocaleOption locale;
    bool isDryRun = false;
    bool hasNoBackup = false;

    /// Adds all but DESIGN, which has to be added before.
    void addTo(CLI::App &command);
    [[nodiscard]] WriteOptions options() const;
};

/// bom set: gives properties of parts new values.
class SetCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    struct Assignment
    {
        QString property;
        QString value;
    };
    /// Nothing, after a message, when one of them is none or a property is named twice.
    [[nodiscard]] std::optional<QList<Assignment>> assignments() const;
    /// False, after messages, when a new property may be another one misspelt.
    [[nodiscard]] bool areMeant(OpenDesign &design, const QList<Assignment> &wanted) const;

    WriteArguments m_arguments;
    std::string m_references;
    std::vector<std::string> m_assignments;
    bool m_makesNew = false;
};

/// bom apply: takes the values of an edited report into the design.
class ApplyCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    /// Compares the file with the design; prints why it cannot be read.
    [[nodiscard]] ExitStatus readEdits(OpenDesign &design, DesignEdits &edits, bool isSpreadsheet) const;

    WriteArguments m_arguments;
    std::string m_edits;
    std::string m_sheet;
    bool m_addsProperties = false;
    bool m_acceptsSpreadsheetChanges = false;
    std::vector<std::string> m_newProperties;
};

/// bom undo: takes back what the last command wrote into a design.
class UndoCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    std::string m_design;
};
