// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class APPLNDOCUMENT;

// What the current design document of the host says. Without a document everything is empty.

/// Null when no design is open.
[[nodiscard]] APPLNDOCUMENT *currentDesign();
/// A value of the information block; "<NONE>" counts as empty.
[[nodiscard]] QString designInfo(const char *key);
/// The title, or the document's file name without folder and last extension.
[[nodiscard]] QString designTitle();
/// The assembly variant; a board has none.
[[nodiscard]] QString designVariant();

/// The absolute path proposed for a report of the design, `extension` with its dot. The folder is the working
/// folder, or the user's when the program's own folder is that one or is known by a relative path only; it is
/// made when it is missing.
[[nodiscard]] QString designOutputPath(const QString &extension);
