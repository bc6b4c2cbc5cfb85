// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/fieldwidthspinbox.h"

namespace {

/// No value of a report is cut to more.
constexpr int mostCharacters = 1000;

} // namespace

FieldWidthSpinBox::FieldWidthSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setRange(0, mostCharacters);
    setSpecialValueText(tr("No Limit"));
    setSuffix(tr(" Characters"));
    // The number that is entered most often.
    setAccelerated(true);
}

void FieldWidthSpinBox::setLimit(int limit)
{
    m_limit = limit;
    setValue(limit);
    m_shown = value();
}

int FieldWidthSpinBox::limit() const
{
    return value() == m_shown ? m_limit : value();
}

QString FieldWidthSpinBox::withoutUnit(const QString &text) const
{
    QStringView number(text);
    if (!prefix().isEmpty() && number.startsWith(prefix())) {
        number = number.sliced(prefix().size());
    }
    if (!suffix().isEmpty() && number.endsWith(suffix())) {
        number = number.chopped(suffix().size());
    }
    return number.trimmed().toString();
}

int FieldWidthSpinBox::valueFromText(const QString &text) const
{
    const QString number = withoutUnit(text);
    return number.compare(specialValueText(), Qt::CaseInsensitive) == 0 ? minimum() : locale().toInt(number);
}

QValidator::State FieldWidthSpinBox::validate(QString &input, int &position) const
{
    const QString number = withoutUnit(input);
    if (number.compare(specialValueText(), Qt::CaseInsensitive) == 0) {
        return QValidator::Acceptable;
    }
    // A text that is being typed over, and "No Limit" letter by letter.
    if (specialValueText().startsWith(number, Qt::CaseInsensitive)) {
        return QValidator::Intermediate;
    }
    return QSpinBox::validate(input, position);
}

void FieldWidthSpinBox::fixup(QString &input) const
{
    if (withoutUnit(input).isEmpty()) {
        input = specialValueText();
    } else {
        QSpinBox::fixup(input);
    }
}
