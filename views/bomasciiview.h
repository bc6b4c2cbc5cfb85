// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

/// Saves the bill of materials as text in columns of fixed widths.
class BOMAsciiView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMAsciiView(QWidget *parent = nullptr);

    /// Asks for a file, writes it and hands it to the desktop. The user is told when it cannot be written;
    /// the old file then stays.
    void writeOutput();

public Q_SLOTS:
    /// Does nothing: the text is made when it is asked for.
    void handleBOMDataUpdate() override {}
};
