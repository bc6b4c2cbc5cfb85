// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QString>

/// A label whose text runs from top to bottom.
class VLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit VLabel(const QString &text, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Makes the picture of the turned text, unless there is one for this screen.
    void turnText();

    QString m_text;
    /// Null until the label is shown, and after its look has changed.
    QPixmap m_turned;
};
