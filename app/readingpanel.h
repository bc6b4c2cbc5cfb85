// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

/// Stands in the middle of a window and says what the program is at, with a button that cancels it.
class ReadingPanel final : public QFrame
{
    Q_OBJECT

public:
    explicit ReadingPanel(QWidget *window);

    /// Shows a text with the button, which takes the focus.
    void showText(const QString &text);
    /// The same without the button, for the step that cannot be cancelled. Is painted at once.
    void showLastStep(const QString &text);

Q_SIGNALS:
    void cancelled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QLabel *m_text = nullptr;
    QPushButton *m_cancel = nullptr;
};
