// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Why something is not done, as a box tells it.
struct Refusal
{
    QString title;
    QString text;

    bool operator==(const Refusal &) const = default;
};
