// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applnwidget.h"
#include "module/unsavedwork.h"

#include <QString>

#include <memory>

class BOMPartsDatabase;
class LegacyOffer;
class ReportOutputs;
class WindowActions;
class WindowPages;

/// The module's window: the report, the property editor and the options of the template, and the commands
/// that write the report elsewhere.
class BOMMainWindow final : public APPLNWIDGET
{
    Q_OBJECT

public:
    /// The database is not owned; once it is gone the window shows what it showed last. Nor are the
    /// stores. The store of the templates owns the mark of unsaved changes, that of the assignments knows
    /// what is pending.
    BOMMainWindow(BOMPartsDatabase *database, const EditStores &stores, QWidget *parent = nullptr);
    ~BOMMainWindow() override;

    /// Builds widgets, actions, menus and tool bars, once.
    bool createwindow(APPLNFRAME *frame) override;
    void destroywindow() override;
    void updatewindow() override;
    void onactivate(bool isActive) override;
    /// Asks what is to become of unsaved changes of the template and of pending edits. False when they are to
    /// be kept, or could not be saved or written. Edits that the user discards stay in their journal.
    [[nodiscard]] bool canbeclosed() override;

    /// Shows the report and the parts, unless that has been done.
    void fillViews();
    /// See INETCLIENT::isbusy().
    [[nodiscard]] bool isBusy() const;

Q_SIGNALS:
    /// The user has come to the window.
    void activated();

private Q_SLOTS:
    void saveTemplate();
    void loadTemplate(const QString &templateName);
    void newTemplate();
    void deleteTemplate();
    void resetDefaultTemplate();
    void importTemplate();
    void exportTemplate();
    /// Offers templates made of scripts of earlier versions; from then on it is not offered at the start.
    void importLegacyTemplates();
    void setCurrentTemplateChanged(bool hasChanges);
    void setCurrentTemplateChanged() { setCurrentTemplateChanged(true); }

    /// Takes what the controls say into the working template.
    void settingsChanged();
    void configureAdvancedSettings();
    /// Writes the report in the form that the sending action stands for.
    void outputBOM();
    /// Reads the files of the design again.
    void manualReload();
    void showGlobalPropertyEditor();
    void showFindDialogue();
    void showReplaceDialogue();
    void editBomNotes();
    /// Shows what the pending edits would do, and writes them if the user says so there.
    void reviewPendingChanges();
    void setPropertiesChanged(bool arePending);

private:
    void buildBars();
    void connectActions();
    void connectPanel();
    void connectViews();
    void connectTemplates();
    void showTemplateNames();
    void showTemplate();
    void showModified();
    void forgetDatabase();
    /// Offers what an earlier run left of the design that is open, once for each design.
    void offerEarlier();

    BOMPartsDatabase *m_database;
    EditStores m_stores;
    std::unique_ptr<WindowActions> m_actions;
    WindowPages *m_pages = nullptr;
    std::unique_ptr<ReportOutputs> m_outputs;
    LegacyOffer *m_legacyOffer;
    bool m_isFilled = false;
    /// The edits of an earlier run were offered for the design that is open.
    bool m_isEarlierOffered = false;
    bool m_isReviewing = false;
};
