// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Lets screen readers take a widget for a pane of its window, with all of its children. Of a dock widget
/// they would otherwise see no title bar, and of a main window in a window another window.
void makeAccessiblePane(QWidget *widget);
