// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QLayout>

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

protected:
    /// Keeps the dialog as tall as its wrapped texts need at this width: a window does that for a layout's
    /// least size only.
    void resizeEvent(QResizeEvent *event) override
    {
        QDialog::resizeEvent(event);
        if (layout() && layout()->hasHeightForWidth()) {
            setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
        }
    }
};
