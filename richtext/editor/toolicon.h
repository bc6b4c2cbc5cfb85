// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QPalette;

/// An icon of the text tool bars in the colour of a palette's button text. With a valid colour a bar in it is
/// drawn at the bottom.
[[nodiscard]] QIcon toolIcon(const QString &name, const QPalette &palette, const QColor &bar = {});
