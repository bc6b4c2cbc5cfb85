// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QPrintPreviewWidget;
class QPrinter;
class QToolBar;

/// Shows the pages that would be printed. Accepted once the user has chosen a printer in the dialog that the
/// Print button opens.
class PrintPreview final : public QDialog
{
    Q_OBJECT

public:
    /// The printer must outlive the dialog. `paint` paints the pages on whatever printer it is given.
    PrintPreview(QPrinter &printer, std::function<void(QPrinter &)> paint, QWidget *parent);

private:
    [[nodiscard]] QToolBar *makeToolBar();
    void choosePrinter();
    void goToPage(int page);
    void updatePageLabel();

    QPrinter &m_printer;
    QPrintPreviewWidget *m_pages = nullptr;
    QLabel *m_pageLabel = nullptr;
};
