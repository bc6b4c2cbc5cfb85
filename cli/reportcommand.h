// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/designarguments.h"

#include <QList>

class OpenDesign;

/// bom report: writes the bill of materials.
class ReportCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    struct Output
    {
        QString path;
        bool isFull = false;
    };

    [[nodiscard]] QList<Output> outputs() const;
    [[nodiscard]] static bool areDistinct(const QList<Output> &outputs);
    [[nodiscard]] bool spareTheDesign(OpenDesign &design, const QList<Output> &outputs) const;
    [[nodiscard]] bool mayGoOn(OpenDesign &design) const;
    [[nodiscard]] ExitStatus write(OpenDesign &design, const QList<Output> &outputs) const;

    DesignArguments m_design;
    std::string m_csv;
    std::string m_fullCsv;
    std::string m_locale;
    bool m_allowDuplicates = false;
};
