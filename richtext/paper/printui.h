// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QPageLayout;
class QPrinter;
class QWidget;

/// The dialogs about paper and printers, in one place so that a test can answer them.
class PrintUi
{
public:
    using PaintPages = std::function<void(QPrinter &printer)>;

    PrintUi() = default;
    PrintUi(const PrintUi &) = delete;
    PrintUi &operator=(const PrintUi &) = delete;
    virtual ~PrintUi() = default;

    /// Shows what will be printed and lets the user choose the printer and its settings; false when
    /// cancelled.
    [[nodiscard]] virtual bool choosePrinter(QWidget *parent, QPrinter &printer,
                                             const PaintPages &paintPreview) = 0;

    /// Lets the user choose paper, orientation and margins; false when cancelled.
    [[nodiscard]] virtual bool choosePaper(QWidget *parent, QPageLayout &layout) = 0;

    /// The installed one; before any is installed, Qt's dialogs.
    [[nodiscard]] static PrintUi &current();
    /// Installs `ui`, which stays owned by the caller; null goes back to Qt's dialogs.
    static void install(PrintUi *ui);
};
