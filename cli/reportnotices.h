// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class OpenDesign;

/// What a report leaves out or mixes because of the not-fitted choice, one sentence each.
[[nodiscard]] QStringList notFittedNotices(OpenDesign &design);

/// What a report does not show because another line, or part where they are listed one by one, begins with a
/// reference that compares equal, as R01 and R1 do; one sentence each.
[[nodiscard]] QStringList replacedLineNotices(OpenDesign &design, bool grouped);
