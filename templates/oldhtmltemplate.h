// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class BOMTemplate;
class QWidget;

/// What an HTML file of an old template holds for the present ones.
struct OldHtmlTemplate
{
    /// Whether the file was read. Otherwise header and footer are empty and stay as they were in the
    /// template.
    bool isConverted = false;
    /// XHTML fragments: what stands in the elements with the ids customHeader and customFooter.
    QString header;
    QString footer;
};

/// Reads the file; what is wrong with it goes to the debug output.
[[nodiscard]] OldHtmlTemplate readOldHtmlTemplate(const QString &path);

/// Gives a template that has neither header nor footer those of its old HTML file. True when there were any,
/// so that the template is another one than its file.
[[nodiscard]] bool upgradeTemplate(BOMTemplate &settings);

/// Says that a template was upgraded.
void showTemplateUpgraded(QWidget *parent, const QString &templateName);
