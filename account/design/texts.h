// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

/// What tr() is for the sentences about a design and its bill. A sentence is one text with places, since
/// other languages have another order of words; one for a single thing and one for several.
struct AccountTexts
{
    Q_DECLARE_TR_FUNCTIONS(AccountTexts)
};
