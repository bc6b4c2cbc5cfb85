// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The style sheet that a new template has and "reset" brings back; empty when the resource is missing.
[[nodiscard]] QString defaultStyleSheet();
