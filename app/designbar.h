// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class ProgramMenus;
class QToolBar;

/// A tool bar with what the program does with a design: opens it, reads it again, shows a variant, lists
/// parts that are not fitted. The caller owns it.
[[nodiscard]] QToolBar *makeDesignBar(ProgramMenus &menus);
