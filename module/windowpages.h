// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class BOMDataView;
class BOMHTMLView;
class DockWidget;
class OptionsPanel;
class QTabWidget;

/// What the module's window shows: the report and the property editor on tabs, the options in a dock panel
/// beside them. A main window of its own because dock widgets live in main windows only.
class WindowPages final : public QMainWindow
{
    Q_OBJECT

public:
    explicit WindowPages(QWidget *parent = nullptr);

    [[nodiscard]] QTabWidget &tabs() { return *m_tabs; }
    [[nodiscard]] BOMHTMLView &report() { return *m_report; }
    [[nodiscard]] BOMDataView &dataView() { return *m_dataView; }
    [[nodiscard]] OptionsPanel &options() { return *m_options; }

    void showPropertyEditor();
    /// Gives the keyboard to the report, unless another widget of the window has it.
    void takeFocus();
    /// Width and fold of the panel are kept from one run to the next.
    void keepPlaces() const;

protected:
    /// Keeps Ctrl+Tab from the tabs; hosts switch windows with it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addPage(QWidget *view, const QString &name, const QString &title);
    void restorePlaces();

    QTabWidget *m_tabs;
    BOMHTMLView *m_report;
    BOMDataView *m_dataView;
    OptionsPanel *m_options;
    DockWidget *m_dock;
};
