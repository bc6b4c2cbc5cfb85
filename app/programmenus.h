// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/dnpchoice.h"

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QStringList>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;

/// The program's own menus, around those of the module: File in front, View and Help behind.
class ProgramMenus final : public QObject
{
    Q_OBJECT

public:
    /// A module's menu with this number goes into the program's Help.
    static constexpr unsigned HelpMenuId = 276;

    explicit ProgramMenus(QMainWindow *window);

    [[nodiscard]] QAction *openAction() const { return m_open; }
    /// Module menus go in front of it.
    [[nodiscard]] QAction *firstAfterModule() const;
    void addToHelp(const QList<QAction *> &actions);
    void removeFromHelp(const QList<QAction *> &actions);

    /// To open the report that was written last, and its folder; disabled without one.
    [[nodiscard]] QList<QAction *> outputActions() const { return {m_openOutput, m_openFolder}; }
    void setOutput(const QString &name);
    /// What needs a design is disabled without one.
    void setDesignOpen(bool isOpen);
    void setRecentFiles(const QStringList &paths);
    void setUndoEnabled(bool isEnabled);
    void setDnpChoice(DnpChoice choice);
    /// The variants that can be chosen; the menu is hidden without any. `current` is empty for the design as
    /// drawn.
    void setVariants(const QStringList &variants, const QString &current);

Q_SIGNALS:
    void openRequested();
    void newWindowRequested();
    void outputRequested();
    void outputFolderRequested();
    void closeRequested();
    void rereadRequested();
    void recentChosen(const QString &path);
    void recentCleared();
    /// The File menu is about to be seen.
    void fileMenuOpening();
    void undoRequested();
    void dnpChosen(DnpChoice choice);
    /// Empty for the design as drawn.
    void variantChosen(const QString &variant);
    void aboutRequested();

private:
    void buildFile();
    void buildView();
    void buildHelp();
    QAction *add(QMenu *menu, const QString &text, const QString &tip, const QKeySequence &key = {});
    void listPanels();
    void addDnpChoice(const QString &text, const QString &tip, DnpChoice choice);

    QMainWindow *m_window;
    QAction *m_open = nullptr;
    QMenu *m_recent = nullptr;
    QAction *m_openOutput = nullptr;
    QAction *m_openFolder = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_close = nullptr;
    QMenu *m_panels = nullptr;
    QMenu *m_view = nullptr;
    QMenu *m_notFitted = nullptr;
    QMenu *m_variants = nullptr;
    QMenu *m_help = nullptr;
    QAction *m_about = nullptr;
    QActionGroup *m_dnpChoices = nullptr;
    QActionGroup *m_variantChoices = nullptr;
};
