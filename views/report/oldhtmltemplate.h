// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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

/// Reads the file; what is wrong with it is told in debug lines.
[[nodiscard]] OldHtmlTemplate readOldHtmlTemplate(const QString &path);

/// Tells the user that a template was converted.
void tellTemplateUpgraded(QWidget *parent, const QString &templateName);
