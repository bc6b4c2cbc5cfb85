// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

class QPushButton;
class QToolButton;

/// Asks for a colour; an invalid one when the user cancels.
using ColorChooser = std::function<QColor(QWidget *parent, const QColor &now, const QString &title)>;

/// A colour that may be left open: a button with a swatch, one for "no colour" where that makes sense, and
/// one that leaves it open.
class ColorField : public QWidget
{
    Q_OBJECT

public:
    explicit ColorField(QWidget *parent = nullptr);
    ~ColorField() override;

    /// What the colour is of: the title of the colour dialog and the accessible names.
    void setSubject(const QString &subject);
    /// Whether there may be no colour at all.
    void setNoneAllowed(bool allowed);
    /// What is shown while the colour is open.
    void setOpenText(const QString &text);
    void setChooser(const ColorChooser &chooser) { m_chooser = chooser; }

    /// The colour as a value of the style sheet, empty while open.
    [[nodiscard]] QString value() const { return m_value; }
    /// Shows a value, without a signal.
    void showValue(const QString &value);

Q_SIGNALS:
    /// The user chose another colour, or left it open.
    void valueChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void choose();
    void take(const QString &value);
    void refresh();

    QPushButton *m_button;
    QToolButton *m_none;
    QToolButton *m_clear;
    ColorChooser m_chooser;
    QString m_value;
    QString m_openText;
    QString m_subject;
};
