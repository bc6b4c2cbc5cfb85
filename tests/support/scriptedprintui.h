// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/paper/printui.h"

#include <QPageLayout>
#include <QPrinter>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

/// Installed while it lives: prints into a PDF file and chooses the paper that the test says.
class ScriptedPrintUi final : public PrintUi
{
public:
    ScriptedPrintUi() { install(this); }
    ~ScriptedPrintUi() override { install(nullptr); }

    /// Empty: the dialog is cancelled.
    QString printFile;
    std::optional<QPageLayout> paper;
    /// Such as "2,4"; empty: all.
    QString pages;
    /// A preview is painted into this file before.
    QString previewFile;
    QPageLayout offeredPaper;
    /// What the user does while the next dialog stands there.
    std::function<void()> whileAsked;

    bool choosePrinter(QWidget *, QPrinter &printer, const PaintPages &paintPreview) override
    {
        offeredPaper = printer.pageLayout();
        if (whileAsked) {
            std::exchange(whileAsked, {})();
        }
        if (!previewFile.isEmpty()) {
            QPrinter preview;
            preview.setOutputFileName(previewFile);
            preview.setPageLayout(offeredPaper);
            paintPreview(preview);
        }
        printer.setOutputFileName(printFile);
        printer.setPageRanges(QPageRanges::fromString(pages));
        return !printFile.isEmpty();
    }
    bool choosePaper(QWidget *, QPageLayout &layout) override
    {
        offeredPaper = layout;
        layout = paper.value_or(layout);
        return paper.has_value();
    }
};
