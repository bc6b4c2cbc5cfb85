// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnframe.h"

#include <QHash>
#include <QMainWindow>
#include <QMap>
#include <QPointer>

#include <functional>

class EmptyPage;
class ProgramMenus;
class QStackedWidget;
class StatusNotes;

/// The program's window: the frame that a module puts its menus, tool bars and window into, around it the
/// program's own menus and the notes in the status bar. Without a module's window it tells what to do.
class FrameWindow final : public QMainWindow, public APPLNFRAME
{
    Q_OBJECT

public:
    FrameWindow();
    ~FrameWindow() override;

    void addmenu(unsigned id, QMenu *menu, unsigned flags) override;
    void removemenu(QMenu *menu) override;
    void addtoolbar(QToolBar *bar) override;
    void removetoolbar(QToolBar *bar) override;
    void setwidget(QWidget *widget) override;
    void removewidget(QWidget *widget) override;
    void settitle(const QString &title) override;
    void setstatustext(const QString &text) override;
    void showframe(unsigned state) override;
    [[nodiscard]] bool isframevisible() const override;

    /// What is open, in front of the module's title; empty for nothing.
    void setDesignName(const QString &name);
    /// Asked before the window closes; it stays open on false.
    void setCloseQuery(std::function<bool()> query) { m_mayClose = std::move(query); }

    [[nodiscard]] ProgramMenus &menus() { return *m_menus; }
    [[nodiscard]] StatusNotes &notes() { return *m_notes; }
    [[nodiscard]] EmptyPage &emptyPage() { return *m_emptyPage; }

    /// Whether a file may be a design, going by its name.
    [[nodiscard]] static bool isDesignName(const QString &path);

Q_SIGNALS:
    /// When the event loop gets to it: whoever holds the file is not kept waiting for it to be read.
    void fileDropped(const QString &path);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void updateTitle();
    void restorePlace();
    void keepPlace() const;

    ProgramMenus *m_menus = nullptr;
    StatusNotes *m_notes = nullptr;
    QStackedWidget *m_pages = nullptr;
    EmptyPage *m_emptyPage = nullptr;
    QPointer<QWidget> m_moduleWidget;
    /// The module's menus by their places.
    QMap<unsigned, QMenu *> m_moduleMenus;
    QString m_designName;
    QString m_title;
    std::function<bool()> m_mayClose;
};
