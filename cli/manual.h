// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct CommandDescription;

/// The manual page bom(1): every command with its options; `exitStatus` is the text that help ends with.
[[nodiscard]] QString manualPage(const CommandDescription &program, const QString &version,
                                 const QString &exitStatus);
