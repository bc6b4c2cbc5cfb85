// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/lengthspin.h"

#include "host/framework/hostui.h"
#include "richtext/editor/stylefields.h"

#include <QSignalBlocker>

LengthSpin::LengthSpin(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setDecimals(2);
    setSuffix(tr(" pt"));
    setKeyboardTracking(false);
    stylefields::guardFromWheel(this);
    setBounds(0, 500);
    setOpenText(tr("not set"));
    setLocale(HostUi::current().locale());
    connect(this, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &LengthSpin::takeValue);
}

LengthSpin::~LengthSpin() = default;

void LengthSpin::setBounds(double least, double most)
{
    const QSignalBlocker blocker(this);
    setRange(least - 1, most); // the minimum stands for an open length
    setValue(minimum());
}

void LengthSpin::setOpenText(const QString &text)
{
    setSpecialValueText(text);
}

std::optional<double> LengthSpin::length() const
{
    return value() <= minimum() ? std::nullopt : std::optional(value());
}

/// The range has one value below the least length, which stands for an open one; between the two is nothing.
void LengthSpin::takeValue(double value)
{
    if (value > minimum() && value < minimum() + 1) {
        setValue(minimum() + 1);
    } else {
        Q_EMIT lengthChanged();
    }
}

void LengthSpin::showLength(std::optional<double> length, const QString &written)
{
    const QSignalBlocker blocker(this);
    setValue(length ? qBound(minimum() + 1, *length, maximum()) : minimum());
    const bool otherUnit = length && !written.endsWith(QLatin1String("pt"), Qt::CaseInsensitive);
    setToolTip(otherUnit ? tr("Written as %1").arg(written) : QString());
}

void LengthSpin::stepBy(int steps)
{
    if (!length()) {
        setValue(m_firstStep);
    } else if (value() + steps * singleStep() < minimum() + 1) {
        setValue(minimum() + 1);
    } else {
        QDoubleSpinBox::stepBy(steps);
    }
    selectAll();
}

QAbstractSpinBox::StepEnabled LengthSpin::stepEnabled() const
{
    return length() && value() <= minimum() + 1 ? StepEnabled(StepUpEnabled)
                                                : StepUpEnabled | StepDownEnabled;
}

QValidator::State LengthSpin::validate(QString &text, int &pos) const
{
    if (text.trimmed().isEmpty() || text == suffix() || specialValueText().startsWith(text)) {
        return text == specialValueText() ? QValidator::Acceptable : QValidator::Intermediate;
    }
    return QDoubleSpinBox::validate(text, pos);
}

void LengthSpin::fixup(QString &text) const
{
    const QString number = QString(text).remove(suffix()).trimmed();
    if (number.isEmpty() || specialValueText().startsWith(number)) {
        text = specialValueText();
    } else {
        QDoubleSpinBox::fixup(text);
    }
}

/// Without zeros at the end.
QString LengthSpin::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(value);
    const QString point = locale().decimalPoint();
    if (text.contains(point)) {
        while (text.endsWith(locale().zeroDigit())) {
            text.chop(1);
        }
        if (text.endsWith(point)) {
            text.chop(point.size());
        }
    }
    return text;
}
