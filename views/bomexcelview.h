// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

/// Saves the bill of materials as a spreadsheet, an .xlsx file.
class BOMExcelView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMExcelView(QWidget *parent = nullptr);

    /// Asks for a file, writes it and hands it to the desktop. The user is told when it cannot be made, which
    /// shows before the question for a file, or cannot be written; the old file then stays.
    void writeOutput();

public Q_SLOTS:
    /// Does nothing: the file is made when it is asked for.
    void handleBOMDataUpdate() override {}
};
