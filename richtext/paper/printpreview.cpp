// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/printpreview.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

PrintPreview::PrintPreview(QPrinter &printer, std::function<void(QPrinter &)> paint, QWidget *parent)
    : QDialog(parent)
    , m_printer(printer)
    , m_pages(new QPrintPreviewWidget(&printer, this))
    , m_pageLabel(new QLabel(this))
{
    setWindowTitle(tr("Print Preview"));
    const QSize room = screen()->availableSize() - QSize(40, 80);
    resize(QSize(800, 900).boundedTo(room));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto *print = buttons->addButton(tr("&Print..."), QDialogButtonBox::ActionRole);
    print->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeToolBar());
    layout->addWidget(m_pages, 1);
    layout->addWidget(buttons);
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this,
            [paint = std::move(paint)](QPrinter *target) { paint(*target); });
    connect(m_pages, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::updatePageLabel);
    connect(print, &QPushButton::clicked, this, &PrintPreview::choosePrinter);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_pages->fitInView();
    print->setFocus();
}

QToolBar *PrintPreview::makeToolBar()
{
    auto *bar = new QToolBar(this);
    const auto add = [this, bar](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = bar->addAction(text);
        action->setShortcut(shortcut);
        action->setToolTip(text + QStringLiteral(" (") + shortcut.toString(QKeySequence::NativeText) + u')');
        connect(action, &QAction::triggered, this, slot);
    };
    add(tr("First"), Qt::CTRL | Qt::Key_Home, [this] { goToPage(1); });
    add(tr("Previous"), Qt::Key_PageUp, [this] { goToPage(m_pages->currentPage() - 1); });
    bar->addWidget(m_pageLabel);
    add(tr("Next"), Qt::Key_PageDown, [this] { goToPage(m_pages->currentPage() + 1); });
    add(tr("Last"), Qt::CTRL | Qt::Key_End, [this] { goToPage(m_pages->pageCount()); });
    bar->addSeparator();
    add(tr("Zoom In"), QKeySequence::ZoomIn, [this] { m_pages->zoomIn(); });
    add(tr("Zoom Out"), QKeySequence::ZoomOut, [this] { m_pages->zoomOut(); });
    add(tr("Whole Page"), Qt::CTRL | Qt::Key_0, [this] { m_pages->fitInView(); });
    add(tr("Page Width"), Qt::CTRL | Qt::Key_1, [this] { m_pages->fitToWidth(); });
    return bar;
}

void PrintPreview::choosePrinter()
{
    QPrintDialog dialog(&m_printer, this);
    dialog.setMinMax(1, std::max(m_pages->pageCount(), 1));
    if (dialog.exec() == QDialog::Accepted) {
        accept();
    }
}

void PrintPreview::goToPage(int page)
{
    m_pages->setCurrentPage(std::clamp(page, 1, std::max(m_pages->pageCount(), 1)));
    updatePageLabel();
}

void PrintPreview::updatePageLabel()
{
    m_pageLabel->setText(tr(" Page %1 of %2 ").arg(m_pages->currentPage()).arg(m_pages->pageCount()));
}
