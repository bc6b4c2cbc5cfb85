// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnmodule.h"

#include <QIcon>
#include <QList>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <optional>

class QAction;
class QMenu;
class QToolBar;

/// A module's window made of widgets, with menus and tool bars in the host's frame.
class APPLNWIDGET : public QWidget, public APPLNWINDOW
{
    Q_OBJECT

public:
    explicit APPLNWIDGET(QWidget *parent = nullptr);
    /// Takes menus, tool bars and itself out of the frame.
    ~APPLNWIDGET() override;

    /// Puts the widget into the frame. A subclass builds what it holds behind that.
    bool createwindow(APPLNFRAME *frame) override;
    [[nodiscard]] bool isvisible() const override;
    void showwindow(unsigned state) override;
    void updatewindow() override { update(); }
    void destroywindow() override;
    void addctrlbar(QToolBar *bar, unsigned row, unsigned edge) override;

    /// Null before createwindow().
    [[nodiscard]] APPLNFRAME *getframe() const { return m_frame; }

    /// The picture of a resource or file; a null icon when there is none. SVG, whatever the file is called,
    /// is drawn in the colours of the program's palette and follows it. With a palette it keeps that one's
    /// colours, for widgets whose background does not follow the theme.
    [[nodiscard]] static QIcon makeIcon(const QString &path, const std::optional<QPalette> &palette = {});

protected:
    /// Has an action show the help of the window's module.
    virtual void sethelpaction(QAction *action);
    /// Activation of the host's window is that of this one.
    bool event(QEvent *event) override;
    /// Keys that nothing in the window takes are commands of the host's.
    void keyPressEvent(QKeyEvent *event) override;

    /// Menu and tool bar become the window's and go with it. Only after createwindow().
    void addmenu(unsigned id, QMenu *menu, unsigned flags);
    void addtoolbar(QToolBar *bar);

private:
    APPLNFRAME *m_frame = nullptr;
    QList<QMenu *> m_menus;
    QList<QPointer<QToolBar>> m_toolbars;
};
