// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

/// What happens to parts that are not fitted.
enum class DnpChoice
{
    /// They reach the module as skipped.
    Exclude,
    /// They are listed, marked and not counted.
    Include,
    /// Only they are listed: the fitted ones are skipped.
    Only
};
