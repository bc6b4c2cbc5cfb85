// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

/// A window to make a picture of.
struct Picture
{
    /// Begins the names of its files.
    QString name;
    /// Makes the window anew, with all that it shows, which lives as long as the window.
    std::function<std::shared_ptr<QWidget>()> make;
};

/// All that scripts/looks shows. A new window needs one function in pictures.cpp and a line in its table.
[[nodiscard]] QList<Picture> pictures();
