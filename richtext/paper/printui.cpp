// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/printui.h"

#include "richtext/paper/printpreview.h"

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>

namespace {

class QtPrintUi final : public PrintUi
{
public:
    bool choosePrinter(QWidget *parent, QPrinter &printer, const PaintPages &paintPreview) override
    {
        PrintPreview preview(printer, paintPreview, parent);
        return preview.exec() == QDialog::Accepted;
    }

    bool choosePaper(QWidget *parent, QPageLayout &layout) override
    {
        QPrinter printer;
        printer.setPageLayout(layout);
        QPageSetupDialog dialog(&printer, parent);
        if (dialog.exec() != QDialog::Accepted) {
            return false;
        }
        layout = printer.pageLayout();
        return true;
    }
};

PrintUi *installed = nullptr;

} // namespace

PrintUi &PrintUi::current()
{
    static QtPrintUi dialogs;
    return installed ? *installed : dialogs;
}

void PrintUi::install(PrintUi *ui)
{
    installed = ui;
}
