// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/designarguments.h"
#include "cli/localeoption.h"

#include <QByteArray>
#include <QList>

#include <array>
#include <string>

class BOMPartsDatabase;
class OpenDesign;

/// bom report: writes the bill of materials.
class ReportCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    enum class Form
    {
        Csv,
        FullCsv,
        Ascii,
        Html,
        Pdf,
        Xlsx,
        Json
    };
    struct Output
    {
        QString path;
        Form form = Form::Csv;
    };
    /// An option that names an output.
    struct OutputOption
    {
        const char *name;
        const char *description;
        Form form;
        std::string ReportCommand::*path;
    };
    [[nodiscard]] static const std::array<OutputOption, 7> &outputOptions();

    [[nodiscard]] QList<Output> outputs() const;
    [[nodiscard]] static bool areDistinct(const QList<Output> &outputs);
    [[nodiscard]] bool spareTheDesign(OpenDesign &design, const QList<Output> &outputs) const;
    [[nodiscard]] bool mayGoOn(OpenDesign &design) const;
    static void tellReplacedLines(OpenDesign &design, const QList<Output> &outputs);
    /// Notes that cannot be read are missing in the documents.
    static void tellMissingNotes(OpenDesign &design, const QList<Output> &outputs);
    [[nodiscard]] static QByteArray content(Form form, BOMPartsDatabase &database);
    [[nodiscard]] static bool writeSpreadsheet(const QString &path, BOMPartsDatabase &database);
    [[nodiscard]] ExitStatus write(OpenDesign &design, const QList<Output> &outputs) const;

    DesignArguments m_design;
    std::string m_csv;
    std::string m_fullCsv;
    std::string m_ascii;
    std::string m_html;
    std::string m_pdf;
    std::string m_xlsx;
    std::string m_json;
    LocaleOption m_locale;
    bool m_allowDuplicates = false;
};
