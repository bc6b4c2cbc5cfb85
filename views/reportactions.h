// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>

class QAction;
class QWidget;

/// The commands for looking at a report: those that find, and those that zoom. The zoom is remembered.
class ReportActions final : public QObject
{
    Q_OBJECT

public:
    /// They work in the window of the view, and all but the first in it only while it shows the view.
    explicit ReportActions(QWidget *view);

    /// "findInReport", "findNext" and "findPrevious".
    [[nodiscard]] QList<QAction *> findActions() const { return {m_find, m_findNext, m_findPrevious}; }
    /// "zoomIn", "zoomOut" and "resetZoom".
    [[nodiscard]] QList<QAction *> zoomActions() const { return {m_zoomIn, m_zoomOut, m_resetZoom}; }

    /// In percent.
    [[nodiscard]] int zoom() const { return m_zoom; }
    /// That many steps larger, or smaller below 0.
    void changeZoom(int steps);

Q_SIGNALS:
    void findRequested();
    void findNextRequested();
    void findPreviousRequested();
    void zoomChanged(int percent);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Command
    {
        QString name;
        QString text;
        QString tip;
        QList<QKeySequence> shortcuts;
    };

    QAction *add(const Command &command);
    void addFindActions();
    void addZoomActions();
    void setZoom(int percent);
    void updateEnabled();

    QWidget *m_view;
    int m_zoom;
    QAction *m_find = nullptr;
    QAction *m_findNext = nullptr;
    QAction *m_findPrevious = nullptr;
    QAction *m_zoomIn = nullptr;
    QAction *m_zoomOut = nullptr;
    QAction *m_resetZoom = nullptr;
};
