// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sheets/spreadsheetfile.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// Whether bytes begin as the files of spreadsheet programs do, readable ones or not.
[[nodiscard]] bool isSpreadsheet(const QByteArray &bytes);

/// The spreadsheet that a file's bytes are. Null, with the reason in `problem`, when they are none that can
/// be read.
[[nodiscard]] std::unique_ptr<SpreadsheetFile> openSpreadsheet(QByteArray bytes, QString *problem,
                                                               const SheetLimits &limits = {});
