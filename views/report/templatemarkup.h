// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class BOMTemplate;

/// The headers and footers of a template as documents show them: what would run or fetch something is left
/// out, and what cannot be shown at all is empty.
struct TemplateMarkup
{
    QString documentHeader;
    QString documentFooter;
    QString pageHeader;
    QString pageFooter;
    /// What is missing and why, one sentence each.
    QStringList notices;
};
[[nodiscard]] TemplateMarkup templateMarkup(const BOMTemplate &settings);
