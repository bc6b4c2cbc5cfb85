// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QKeySequence>
#include <QList>
#include <QPointer>
#include <QString>

class APPLNWIDGET;
class PendingUndo;
class QAction;
class QCheckBox;
class QMenu;
class QToolBar;

/// What the report itself offers.
struct LookActions
{
    QList<QAction *> find;
    QList<QAction *> zoom;
};

/// The commands of the main window, as actions that belong to it, and the menus and the tool bar that they
/// stand in.
class WindowActions final
{
    Q_DECLARE_TR_FUNCTIONS(BOMMainWindow)

public:
    /// `look` are those of the report, for finding and zooming.
    WindowActions(APPLNWIDGET *window, PendingUndo *undo, const LookActions &look);

    [[nodiscard]] QMenu *editMenu() const;
    [[nodiscard]] QMenu *generateMenu() const;
    [[nodiscard]] QMenu *templatesMenu() const;
    [[nodiscard]] QMenu *helpMenu() const;
    [[nodiscard]] QMenu *viewMenu() const;
    /// Adds the host's menus and its keys, where it has a menu bar.
    void joinHostMenus() const;
    /// The options of the outputs stand in it as well.
    [[nodiscard]] QToolBar *toolBar() const;
    /// To be called when the frame has taken the tool bar away and the window stays.
    void deleteOptions();

    QAction *undo = nullptr;
    QAction *redo = nullptr;
    QAction *find = nullptr;
    QAction *replace = nullptr;
    QAction *reload = nullptr;
    QAction *review = nullptr;

    /// Only its shortcut reaches it.
    QAction *html = nullptr;
    QAction *pdf = nullptr;
    QAction *csv = nullptr;
    QAction *ascii = nullptr;
    QAction *print = nullptr;
    QAction *excel = nullptr;
    QAction *setPaper = nullptr;
    QAction *advancedSettings = nullptr;

    QPointer<QCheckBox> fullCsv;
    QPointer<QCheckBox> appendNotes;

    QAction *saveTemplate = nullptr;
    QAction *newTemplate = nullptr;
    QAction *deleteTemplate = nullptr;
    QAction *importTemplate = nullptr;
    QAction *exportTemplate = nullptr;
    QAction *resetDefault = nullptr;
    QAction *importLegacy = nullptr;

    QAction *help = nullptr;

    [[nodiscard]] QList<QAction *> outputs() const { return {html, pdf, csv, ascii, print, excel}; }

private:
    struct Command
    {
        QString text;
        QString icon;
        QString tip;
        QKeySequence shortcut = {};
    };

    [[nodiscard]] QAction *add(const Command &command) const;
    void addEditing(PendingUndo *undoStack);
    void addOutputs();
    void addTemplates();

    APPLNWIDGET *m_window;
    LookActions m_look;
};
