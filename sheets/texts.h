// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

/// Why a spreadsheet cannot be read, a context of the translations.
class SpreadsheetTexts
{
    Q_DECLARE_TR_FUNCTIONS(SpreadsheetFile)
};
