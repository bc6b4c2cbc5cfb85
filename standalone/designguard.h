// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class DesignSession;

/// Whether no output may replace a file: the design that is open is read with it or kept in it, or it is one
/// of KiCad's of any design. False where no design is open.
[[nodiscard]] bool belongsToDesign(const DesignSession &session, const QString &path);
