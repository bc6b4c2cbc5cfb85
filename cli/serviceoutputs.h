// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "standalone/dnpchoice.h"
#include "views/report/assemblyservice.h"

#include <CLI/App.hpp>

#include <QList>
#include <QString>
#include <QStringList>

#include <string>
#include <utility>
#include <vector>

class OpenDesign;
struct ServiceBill;

/// The option --for of bom report: files as assembly services take them.
class ServiceOutputs final
{
public:
    void addTo(CLI::App &command);

    [[nodiscard]] bool isEmpty() const { return m_given.empty(); }
    [[nodiscard]] QStringList paths() const;
    /// The files that describe the services.
    [[nodiscard]] QStringList descriptions() const;
    /// Finds and reads the services; prints what is wrong. To be called before anything is written.
    [[nodiscard]] ExitStatus prepare(DnpChoice choice);
    /// The properties that the services ask for.
    [[nodiscard]] QStringList properties() const;
    /// Writes the files; prints which parts lack a number, and what fails.
    [[nodiscard]] ExitStatus write(OpenDesign &design) const;

private:
    struct Output
    {
        QString name;
        QString path;
        bool isSpreadsheet = false;
        QString description;
        AssemblyService service;
    };

    [[nodiscard]] static ExitStatus readService(Output *output);
    static void reportDoubts(const Output &output, const ServiceBill &bill);
    [[nodiscard]] static bool write(const Output &output, const ServiceBill &bill);

    /// Names and files.
    std::vector<std::pair<std::string, std::string>> m_given;
    QList<Output> m_outputs;
};
