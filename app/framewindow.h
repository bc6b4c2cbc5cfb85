// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/hostmenubar.h"
#include "host/framework/applnframe.h"

#include <QMainWindow>
#include <QMap>
#include <QPointer>

#include <functional>
#include <memory>

class EmptyPage;
class ProgramMenus;
class QStackedWidget;
class StatusFields;

/// The program's window: the frame that a module puts its menus, tool bars and window into, around it the
/// program's own menus and the fields in the status bar. Without a module's window it shows how to open a
/// design.
class FrameWindow final : public QMainWindow, public APPLNFRAME
{
    Q_OBJECT

public:
    FrameWindow();
    ~FrameWindow() override;

    [[nodiscard]] MENUBAR *getmenubar() override { return m_menuBar.get(); }
    void addmenu(unsigned id, QMenu *menu, unsigned flags) override;
    void removemenu(QMenu *menu) override;
    void addtoolbar(QToolBar *bar) override;
    void removetoolbar(QToolBar *bar) override;
    void setwidget(QWidget *widget) override;
    void removewidget(QWidget *widget) override;
    void settitle(const QString &title) override;
    void setstatustext(const QString &text) override;
    void setmodified(bool isModified) override { setWindowModified(isModified); }
    void showframe(unsigned state) override;
    [[nodiscard]] bool isframevisible() const override;

    /// What is open, in front of the module's title; empty for nothing.
    void setDesignName(const QString &name);
    /// Asked before the window closes; it stays open on false.
    void setCloseQuery(std::function<bool()> query) { m_canClose = std::move(query); }

    [[nodiscard]] ProgramMenus &menus() { return *m_menus; }
    [[nodiscard]] StatusFields &status() { return *m_status; }
    [[nodiscard]] EmptyPage &emptyPage() { return *m_emptyPage; }

Q_SIGNALS:
    /// Emitted from the event loop after the drop, so that the program that the files were dragged from need
    /// not wait until they are read.
    void filesDropped(const QStringList &paths);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateTitle();
    void restorePlace();
    void moveOntoScreen();
    void keepToolBars() const;
    void keepPlace() const;

    ProgramMenus *m_menus = nullptr;
    std::unique_ptr<HostMenuBar> m_menuBar;
    StatusFields *m_status = nullptr;
    QStackedWidget *m_pages = nullptr;
    EmptyPage *m_emptyPage = nullptr;
    QPointer<QWidget> m_moduleWidget;
    /// The module's menus by their places.
    QMap<unsigned, QMenu *> m_moduleMenus;
    /// False from the removal of the first bar on: without it the places of the others are not the user's.
    bool m_isShowingAllBars = false;
    QString m_designName;
    QString m_title;
    std::function<bool()> m_canClose;
};
