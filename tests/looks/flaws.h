// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// What a picture of a visible window shows badly or not at all: texts that are cut off, keys (Alt+letter)
/// that two widgets or menu entries share, widgets and buttons that a screen reader or a tip cannot name. One
/// sentence each.
[[nodiscard]] QStringList flawsOf(const QWidget &window);
