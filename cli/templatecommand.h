// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command.h"
#include "templates/bomtemplate.h"

#include <QString>

#include <optional>
#include <string>

class TemplateStore;

/// bom template: lists, shows, makes and deletes the user's templates.
class TemplateCommand final : public Command
{
public:
    void addTo(CLI::App &program) override;
    [[nodiscard]] ExitStatus run() override;

private:
    CLI::App *addAction(const char *name, const char *description,
                        ExitStatus (TemplateCommand::*action)(TemplateStore &));
    void addName(CLI::App &action, const char *description);
    void addFile(CLI::App &action, const char *description);

    [[nodiscard]] ExitStatus list(TemplateStore &store);
    [[nodiscard]] ExitStatus show(TemplateStore &store);
    [[nodiscard]] ExitStatus create(TemplateStore &store);
    /// What the new template begins with; nothing, after a message, when that cannot be read.
    [[nodiscard]] std::optional<BOMTemplate> beginning() const;
    [[nodiscard]] ExitStatus remove(TemplateStore &store);
    [[nodiscard]] ExitStatus reset(TemplateStore &store);
    [[nodiscard]] ExitStatus importFile(TemplateStore &store);
    /// Says what the file lacks and which properties have no definition.
    [[nodiscard]] ExitStatus importLegacy(TemplateStore &store);
    [[nodiscard]] ExitStatus exportFile(TemplateStore &store);
    /// The store's spelling of the name; empty, after a message, when there is no such template.
    [[nodiscard]] QString listedName(const TemplateStore &store) const;

    ExitStatus (TemplateCommand::*m_action)(TemplateStore &) = nullptr;
    std::string m_name;
    std::string m_from;
    std::string m_for;
    std::string m_file;
    std::string m_script;
};
