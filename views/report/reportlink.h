// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

/// Whether a report may show a link as one that opens: a file, or an address of the kinds http, https, mailto
/// and file. Others, such as a script, are shown as text.
[[nodiscard]] bool isOpenableLink(const QString &link);

/// What to open for a link; one without a scheme is a file below `designFolder` unless it is absolute.
/// Empty for a link that is not to be opened, not valid for an address that nothing can open.
[[nodiscard]] QUrl linkTarget(const QString &link, const QString &designFolder);
