// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

/// Whether a document may show a link as one that opens: a file, or an address of the kinds http, https,
/// mailto and file. Others, such as a script, are shown as text.
[[nodiscard]] bool isOpenableLink(const QString &link);

/// What to open for a link; a file's path stands below `folder` unless it is absolute, with a scheme and
/// without. Empty for a link that is not to be opened, not valid for an address that nothing can open.
[[nodiscard]] QUrl linkTarget(const QString &link, const QString &folder);

/// Whether the desktop would run what it is to open: a file that may be executed, or a desktop entry.
[[nodiscard]] bool isProgram(const QUrl &target);
