// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applnwidget.h"

#include <QKeySequence>
#include <QPointer>
#include <QString>

class BOMExcelView;
class BOMHTMLView;
class BOMPartsDatabase;
class QAction;
class QTabWidget;
class TemplateStore;

/// The module's window: the report, and the commands that write it elsewhere.
class BOMMainWindow final : public APPLNWIDGET
{
    Q_OBJECT

public:
    /// The database is not owned; once it is gone the window shows what it showed last.
    explicit BOMMainWindow(BOMPartsDatabase *database, QWidget *parent = nullptr);
    ~BOMMainWindow() override;

    /// Builds widgets, actions, menus and tool bar, once.
    bool createwindow(APPLNFRAME *frame) override;
    void updatewindow() override;
    /// Asks what is to become of unsaved changes of the template. False when they are to be kept, or could
    /// not be saved.
    [[nodiscard]] bool canbeclosed() override;

    /// The store of the current template, which hears of changes and is asked when the window is closed. Not
    /// owned; null for none.
    void setTemplates(TemplateStore *templates);

    /// Shows the report, unless that has been done.
    void fillViews();

private Q_SLOTS:
    void setCurrentTemplateChanged(bool hasChanges);
    /// Writes the report in the form that the sending action stands for.
    void outputBOM();
    /// Reads the files of the design again.
    void manualReload();

private:
    struct Command
    {
        QString text;
        QString icon;
        QString tip;
        QKeySequence shortcut = {};
    };

    void buildTabs();
    void buildActions();
    void buildMenus();
    void buildToolBar();
    QAction *addCommand(const Command &command);
    QAction *addOutput(const Command &command);
    void forgetDatabase();
    /// Asks when references occur more than once; false when the user then wants no report.
    [[nodiscard]] bool acceptDuplicates();
    void writeSpreadsheet();

    BOMPartsDatabase *m_database;
    QPointer<TemplateStore> m_templates;
    QTabWidget *m_tabs = nullptr;
    BOMHTMLView *m_report = nullptr;
    BOMExcelView *m_excelView = nullptr;
    bool m_isFilled = false;

    QAction *m_reload = nullptr;
    QAction *m_html = nullptr;
    QAction *m_pdf = nullptr;
    QAction *m_csv = nullptr;
    QAction *m_ascii = nullptr;
    QAction *m_print = nullptr;
    QAction *m_excel = nullptr;
    QAction *m_setPaper = nullptr;
};
