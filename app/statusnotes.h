// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class QLabel;
class QMainWindow;
class QToolButton;

/// What stands at the right of the status bar: how many components there are and stay out, whether the report
/// is behind its files, and how much the reader had to say. A press on these shows the whole texts.
class StatusNotes final : public QObject
{
    Q_OBJECT

public:
    explicit StatusNotes(QMainWindow *window);

    void setAccount(const QString &text, const QString &tip);
    /// One line each; none hides the button.
    void setWarnings(const QStringList &warnings);
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
