// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

struct DesignStatus;
class QLabel;
class QMainWindow;
class QToolButton;

/// The fields at the right of the status bar: how many components are listed and left out, whether the
/// report is older than its files, and how many warnings there are. Clicking one of the latter two shows the
/// whole texts.
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

private:
    void show(const QString &title, const QStringList &lines);

    QMainWindow *m_window;
    QLabel *m_account = nullptr;
    QToolButton *m_problemButton = nullptr;
    QToolButton *m_warningsButton = nullptr;
    QStringList m_warnings;
    QString m_problem;
};
