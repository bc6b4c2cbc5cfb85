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
    /// Whether the user has typed something that only this dialog holds: Escape and the window's cross then
    /// ask before it goes.
    [[nodiscard]] virtual bool hasTypedText() const { return false; }

    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    /// Keeps the dialog as tall as its wrapped texts need at this width: a window does that for a layout's
    /// least size only.
    void resizeEvent(QResizeEvent *event) override
    {
        QDialog::resizeEvent(event);
        if (layout() && layout()->hasHeightForWidth()) {
            setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
        }
    }

private:
    [[nodiscard]] bool mayClose();
};
