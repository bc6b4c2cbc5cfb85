// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/dnpchoice.h"

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
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
    /// Module menus with these numbers go into the program's own.
    static constexpr unsigned HelpMenuId = 276;
    static constexpr unsigned ViewMenuId = 277;

    explicit ProgramMenus(QMainWindow *window);

    [[nodiscard]] QAction *openAction() const { return m_open; }
    /// Module menus go in front of it.
    [[nodiscard]] QAction *firstAfterModule() const;
    [[nodiscard]] QAction *rereadAction() const { return m_reread; }
    [[nodiscard]] QAction *notFittedAction() const;
    [[nodiscard]] QAction *variantAction() const;
    /// False for a module's menu that is one of its own.
    [[nodiscard]] static bool isShared(unsigned id) { return id == HelpMenuId || id == ViewMenuId; }
    /// Puts the entries of a module's menu that is shared in front of the program's own, or takes them out.
    void addShared(unsigned id, const QList<QAction *> &actions);
    void removeShared(unsigned id, const QList<QAction *> &actions);
    /// What has a key: of all menus, or of one of the ACCELERATORS_ tables.
    [[nodiscard]] QList<QAction *> commands() const;
    [[nodiscard]] QList<QAction *> commands(unsigned table) const;

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
    QAction *m_reread = nullptr;
    QMenu *m_file = nullptr;
    QMenu *m_panels = nullptr;
    QMenu *m_view = nullptr;
    QMenu *m_notFitted = nullptr;
    QMenu *m_variants = nullptr;
    QAction *m_fullScreen = nullptr;
    /// Between what the module has put into View and the program's own.
    QPointer<QAction> m_viewSeparator;
    QMenu *m_help = nullptr;
    QAction *m_about = nullptr;
    QActionGroup *m_dnpChoices = nullptr;
    QActionGroup *m_variantChoices = nullptr;
};
