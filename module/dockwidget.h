// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QPointer>

class QBoxLayout;
class QPropertyAnimation;
class QToolButton;
class VLabel;

/// A panel that slides away to a thin strip at the edge of the window, and back.
class DockWidget final : public QDockWidget
{
    Q_OBJECT

public:
    explicit DockWidget(QWidget *parent = nullptr);

    /// Puts a widget into the panel, which owns it then.
    void setContents(QWidget *contents);
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    /// Opens or folds the panel without sliding.
    void setOpen(bool isOpen);
    /// The width of the open panel, or what it will be when the folded one is opened.
    [[nodiscard]] int openWidth() const;
    void setOpenWidth(int width);

public Q_SLOTS:
    void toggleOpenShut();
    /// Shows what belongs to the present state.
    void setDockedState();

private:
    void setUpTitleBar();
    void applyDockedState(int width);
    /// What the window can give the content of the width without growing.
    [[nodiscard]] int fittingWidth(int width) const;
    void open();
    void fold();
    void slide(const QRect &from, const QRect &to);

    QWidget *m_titleBar = nullptr;
    QBoxLayout *m_titleLayout = nullptr;
    QToolButton *m_foldButton = nullptr;
    VLabel *m_label = nullptr;
    QWidget *m_content = nullptr;
    QPointer<QPropertyAnimation> m_animation;
    bool m_isOpen = true;
    /// The width of the content to go back to when the panel opens.
    int m_openWidth = 0;
};
