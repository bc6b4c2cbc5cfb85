// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

class LoadedDesign;

/// A folder of templates with the one that fits the open design, which lives as long as the object. The name
/// of the template is always the same, so that who chose it has it for the next design too.
class FittedFolder final
{
public:
    /// Empty when no folder can be made.
    [[nodiscard]] QString path() const { return m_folder.isValid() ? m_folder.path() : QString(); }

    /// Writes the template for a design in place of the one before. Gives what is wrong; the template beside
    /// the design, when it cannot be read, leaves none.
    [[nodiscard]] QString write(const LoadedDesign &design);

    /// Has a user who never chose a template, and has no "Default" of their own, begin with the fitted one.
    static void proposeToUser();

private:
    QTemporaryDir m_folder;
};
