// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/applndialog.h"

APPLNDIALOG::APPLNDIALOG(QWidget *parent)
    : QDialog(parent)
{
    setModal(true);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}
