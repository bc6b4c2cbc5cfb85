// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/valueeditor.h"

#include <QAbstractSpinBox>
#include <QLocale>

/// The base of spin boxes in which blank is a value of its own and not zero. The number is kept as the text
/// that was typed, so that none is rounded; its decimal point is that of HostUi's locale when the box is
/// made. Stepping from blank begins at 0.
class BlankingNumberBox : public QAbstractSpinBox, public ValueEditor
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)

public:
    explicit BlankingNumberBox(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const { return ValueEditor::text(); }
    void selectText() override { selectAll(); }
    void stepBy(int steps) override;
    [[nodiscard]] QValidator::State validate(QString &input, int &position) const override;
    /// Wide enough for a dozen digits.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void textChanged(const QString &text);

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    /// Without focus the wheel scrolls what is around the box.
    void wheelEvent(QWheelEvent *event) override;

    [[nodiscard]] QString shownText() const override;
    void showText(const QString &text) override;
    [[nodiscard]] std::optional<QString> valueOf(const QString &text) const override;

    /// The number as it is written with "-" and "."; nothing for a text that is none. The text has no blanks
    /// around it, "-" as minus sign, and the user's own decimal point.
    [[nodiscard]] virtual std::optional<QString> numberOf(const QString &text) const = 0;
    /// The number that is `steps` away; nothing where there is none.
    [[nodiscard]] virtual std::optional<QString> steppedNumber(const QString &number, int steps) const = 0;

    [[nodiscard]] QString decimalPoint() const { return m_locale.decimalPoint(); }
    /// With "." as the decimal point.
    [[nodiscard]] QString withPoint(QString text) const
    {
        return text.replace(decimalPoint(), QStringLiteral("."));
    }

private:
    [[nodiscard]] QString plain(const QString &text) const;

    QLocale m_locale;
};
