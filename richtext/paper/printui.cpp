// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/printui.h"

#include "richtext/paper/printpreview.h"

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>

#include <cstdio>
#include <memory>

namespace {

/// While it lives, what Qt writes about printers that are not the system's own is not passed on: a page
/// set-up that only asks for the paper works with any.
class QuietAboutPrinters final
{
public:
    QuietAboutPrinters() { previous = qInstallMessageHandler(pass); }
    ~QuietAboutPrinters() { qInstallMessageHandler(previous); }
    Q_DISABLE_COPY_MOVE(QuietAboutPrinters)

private:
    static void pass(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (message.endsWith(QLatin1String("Cannot be used on non-native printers"))) {
            return;
        }
        if (previous != nullptr) {
            previous(type, context, message);
        } else {
            fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
        }
    }

    static inline QtMessageHandler previous = nullptr;
};

QPageSetupDialog *newPageSetupDialog(QPrinter &printer, QWidget *parent)
{
    const QuietAboutPrinters quiet;
    return new QPageSetupDialog(&printer, parent);
}

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
        const std::unique_ptr<QPageSetupDialog> dialog(newPageSetupDialog(printer, parent));
        if (dialog->exec() != QDialog::Accepted) {
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
