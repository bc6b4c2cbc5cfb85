// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDoubleSpinBox>

#include <optional>

/// A length in points that may be left open.
class LengthSpin : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit LengthSpin(QWidget *parent = nullptr);
    ~LengthSpin() override;

    /// The least and greatest length.
    void setBounds(double least, double most);
    /// What is shown while the length is open.
    void setOpenText(const QString &text);
    /// Where stepping begins when the length is open.
    void setFirstStep(double points) { m_firstStep = points; }

    /// None while open.
    [[nodiscard]] std::optional<double> length() const;
    /// Shows a length, without a signal. `written` is told in the tool tip when it is in another unit.
    void showLength(std::optional<double> length, const QString &written);

    void stepBy(int steps) override;
    QValidator::State validate(QString &text, int &pos) const override;
    void fixup(QString &text) const override;
    [[nodiscard]] QString textFromValue(double value) const override;

Q_SIGNALS:
    /// The user chose another length, or left it open.
    void lengthChanged();

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;

private:
    void takeValue(double value);

    double m_firstStep = 0;
};
