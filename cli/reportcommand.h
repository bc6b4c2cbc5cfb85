// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "cli/designarguments.h"
#include "cli/localeoption.h"
#include "cli/serviceoutputs.h"
#include "core/joinedlines.h"

#include <QList>
#include <QString>

#include <array>
#include <string>
#include <vector>

class BOMPartsDatabase;
class OpenDesign;
class Report;
struct ComponentAccount;
struct ReportForms;

/// bom report: writes the bill of materials.
class ReportCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    /// True with a PDF, the only output that is painted.
    [[nodiscard]] bool paints() const override;
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
    /// An option that names an output.
    struct OutputOption
    {
        const char *name;
        const char *description;
        Form form;
        /// The ending of file names that stands for the form; empty where none does.
        const char *ending;
    };
    struct Output
    {
        QString path;
        Form form = Form::Csv;
    };
    /// What goes into an output.
    struct Content
    {
        QByteArray bytes;
        /// Why there is none; empty when there is.
        QString problem = {};
        /// What it lacks of the report, one sentence each.
        QStringList notices = {};
    };
    static const std::array<OutputOption, 7> outputOptions;

    [[nodiscard]] QList<Output> outputs() const;
    /// The option of the form that the ending of a file name says; null when it says none.
    [[nodiscard]] static const OutputOption *optionOf(const QString &path);
    /// False, after a message, when an output has no ending that says its form.
    [[nodiscard]] bool haveForms() const;
    /// Those of the services too.
    [[nodiscard]] QStringList pathsOf(const QList<Output> &outputs) const;
    [[nodiscard]] static bool areDistinct(const QStringList &outputs);
    /// False, after a message, when an output would overwrite a file that belongs to the design.
    [[nodiscard]] bool protectDesignFiles(OpenDesign &design, const QStringList &outputs) const;
    /// Prints the references that are repeated; false, after a message, when they forbid the report.
    [[nodiscard]] bool shouldContinue(OpenDesign &design, const ComponentAccount &components) const;
    /// What people should know although nothing failed.
    void printNotices(OpenDesign &design, const ComponentAccount &components, const QList<Output> &outputs);
    [[nodiscard]] static ReportForms formsOf(const QList<Output> &outputs);
    /// The user's notes that cannot be read and are missing in the documents, one sentence each.
    [[nodiscard]] static QStringList missingNotes(OpenDesign &design, const QList<Output> &outputs);
    [[nodiscard]] Content content(const Output &output, BOMPartsDatabase &database) const;
    [[nodiscard]] static Content documentContent(Form form, BOMPartsDatabase &database);
    /// The text in columns: fitted to the terminal that it goes to, else as the template says.
    [[nodiscard]] static QByteArray columns(const Output &output, const Report &report);
    [[nodiscard]] ExitStatus write(OpenDesign &design, const QList<Output> &outputs) const;

    DesignArguments m_design;
    /// Whose endings say their forms.
    std::vector<std::string> m_outputs;
    /// In the order of the options.
    std::array<std::string, 7> m_paths;
    ServiceOutputs m_services;
    LocaleOption m_locale;
    QList<JoinedLine> m_joined;
    bool m_allowDuplicates = false;
    bool m_isForSpreadsheets = false;
};
