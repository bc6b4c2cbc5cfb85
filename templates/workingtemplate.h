// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class BOMTemplate;

/// Where the settings of the current template are worked on: the parts database with the editors around it.
class WorkingTemplate
{
public:
    WorkingTemplate() = default;
    WorkingTemplate(const WorkingTemplate &) = delete;
    WorkingTemplate &operator=(const WorkingTemplate &) = delete;
    virtual ~WorkingTemplate() = default;

    /// The settings as they stand now, unsaved changes among them. Name and file path do not count.
    [[nodiscard]] virtual BOMTemplate workingTemplate() const = 0;

    /// The store has selected this template: its settings replace the working ones and are shown. What this
    /// does to the store's modified flag is undone afterwards.
    virtual void takeTemplate(const BOMTemplate &settings) = 0;
};
