// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applnwidget.h"

#include <QKeySequence>
#include <QPointer>
#include <QString>

class BOMDataView;
class BOMExcelView;
class BOMHTMLView;
class BOMPartsDatabase;
class OptionsPanel;
class PendingUndo;
class PropertyAssignments;
class QAction;
class QMenu;
class QTabWidget;
class TemplateStore;

/// What the module keeps of the user's edits, whatever becomes of its window.
struct EditStores
{
    QPointer<PropertyAssignments> assignments;
    QPointer<PendingUndo> undo;
};

/// The module's window: the report, the property editor and the options of the template, and the commands
/// that write the report elsewhere.
class BOMMainWindow final : public APPLNWIDGET
{
    Q_OBJECT

public:
    /// The database is not owned; once it is gone the window shows what it showed last. Nor are the
    /// stores.
    BOMMainWindow(BOMPartsDatabase *database, const EditStores &stores, QWidget *parent = nullptr);
    ~BOMMainWindow() override;

    /// Builds widgets, actions, menus and tool bar, once.
    bool createwindow(APPLNFRAME *frame) override;
    void updatewindow() override;
    /// Asks what is to become of unsaved changes of the template and of pending edits. False when they are to
    /// be kept, or could not be saved or written. Edits that the user discards stay in their journal.
    [[nodiscard]] bool canbeclosed() override;

    /// The store of the current template, which hears of changes and is asked when the window is closed. Not
    /// owned; null for none.
    void setTemplates(TemplateStore *templates);

    /// Shows the report and the parts, unless that has been done.
    void fillViews();
    /// See INETCLIENT::isbusy().
    [[nodiscard]] bool isBusy() const;

private Q_SLOTS:
    void setCurrentTemplateChanged(bool hasChanges);
    /// Writes the report in the form that the sending action stands for.
    void outputBOM();
    /// Reads the files of the design again.
    void manualReload();
    void showGlobalPropertyEditor();
    void showFindDialogue();
    void showReplaceDialogue();
    /// Shows what the pending edits would do, and writes them if the user says so there.
    void reviewPendingChanges();
    void setPropertiesChanged(bool arePending);

private:
    struct Command
    {
        QString text;
        QString icon;
        QString tip;
        QKeySequence shortcut = {};
    };

    void buildPages();
    void buildTabs();
    void connectViews();
    void buildEditActions();
    void buildActions();
    void buildMenus();
    void buildToolBar();
    QAction *addCommand(const Command &command);
    QAction *addOutput(const Command &command);
    void forgetDatabase();
    /// Asks when references occur more than once; false when the user then wants no report.
    [[nodiscard]] bool acceptDuplicates();
    void writeSpreadsheet();
    [[nodiscard]] bool saveChanges();
    /// Offers what an earlier run left of the design that is open, once for each design.
    void offerEarlier();

    BOMPartsDatabase *m_database;
    EditStores m_stores;
    QPointer<TemplateStore> m_templates;
    QTabWidget *m_tabs = nullptr;
    BOMHTMLView *m_report = nullptr;
    BOMDataView *m_dataView = nullptr;
    OptionsPanel *m_options = nullptr;
    BOMExcelView *m_excelView = nullptr;
    bool m_isFilled = false;
    /// The edits of an earlier run were offered for the design that is open.
    bool m_isEarlierOffered = false;
    bool m_isReviewing = false;

    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_find = nullptr;
    QAction *m_replace = nullptr;
    QAction *m_review = nullptr;
    QAction *m_reload = nullptr;
    QAction *m_html = nullptr;
    QAction *m_pdf = nullptr;
    QAction *m_csv = nullptr;
    QAction *m_ascii = nullptr;
    QAction *m_print = nullptr;
    QAction *m_excel = nullptr;
    QAction *m_setPaper = nullptr;
};
