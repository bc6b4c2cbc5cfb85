// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class BOMPartsDatabase;
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

/// Gives the database's template the header and footer of its old HTML file, once: the template then names no
/// such file. True when the file was read, so that the template has a new look.
[[nodiscard]] bool upgradeTemplate(BOMPartsDatabase &database);

/// Says that a template was upgraded.
void showTemplateUpgraded(QWidget *parent, const QString &templateName);
