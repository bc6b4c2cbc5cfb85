// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

struct DesignStatus;
class CountsLabel;
class QAction;
class QMainWindow;
class QToolButton;

/// The fields at the right of the status bar: the report that was written last, what the report lists and
/// leaves out, whether it is older than its files, and how many warnings there are. A button of the latter
/// two shows the whole texts.
class StatusFields final : public QObject
{
    Q_OBJECT

public:
    explicit StatusFields(QMainWindow *window);

    /// Without warnings their button is hidden.
    void setDesign(const DesignStatus &status);
    [[nodiscard]] const QStringList &warnings() const { return m_warnings; }
    /// Why the files of the design cannot be read as they are now; empty when they have been read.
    void setProblem(const QString &problem);
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// Names the report that was written last, on a button that opens these actions; hidden without a name.
    void setWritten(const QString &name, const QList<QAction *> &actions);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const QString &title, const QStringList &lines);
    void leaveRoomForMessage();

    QMainWindow *m_window;
    CountsLabel *m_counts = nullptr;
    QToolButton *m_writtenButton = nullptr;
    QToolButton *m_problemButton = nullptr;
    QToolButton *m_warningsButton = nullptr;
    QStringList m_warnings;
    QString m_problem;
};
