// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/texttable.h"

#include <QStringView>

#include <vector>

/// The highest number behind every text that references begin with: SCR12 counts as 12 behind "SCR" and as 2
/// behind "SCR1".
class ReferenceNumbers final
{
public:
    void note(QStringView reference);
    /// 0 when no reference is such a text with a number behind.
    [[nodiscard]] int highest(QStringView prefix);

private:
    TextTable m_prefixes;
    /// By the number of the prefix.
    std::vector<int> m_highest;
};
