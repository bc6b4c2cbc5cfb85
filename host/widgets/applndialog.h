// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

/// The base of the program's modal dialogs.
class APPLNDIALOG : public QDialog
{
    Q_OBJECT

public:
    explicit APPLNDIALOG(QWidget *parent = nullptr)
        : QDialog(parent)
    {
        setModal(true);
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    }
};
