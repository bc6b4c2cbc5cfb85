// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/blankingnumberbox.h"

#include "host/framework/hostui.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

BlankingNumberBox::BlankingNumberBox(QWidget *parent)
    : QAbstractSpinBox(parent)
    , m_locale(HostUi::current().locale())
{
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textChanged, this, &BlankingNumberBox::textChanged);
}

void BlankingNumberBox::stepBy(int steps)
{
    const QString value = text();
    if (value.isEmpty()) {
        showText(QStringLiteral("0"));
    } else if (const std::optional<QString> number = numberOf(plain(value))) {
        QString stepped = steppedNumber(*number, steps).value_or(*number);
        showText(stepped.replace(u'.', decimalPoint()));
    }
    selectAll();
}

QAbstractSpinBox::StepEnabled BlankingNumberBox::stepEnabled() const
{
    if (isReadOnly()) {
        return StepNone;
    }
    const QString value = text();
    if (value.isEmpty()) {
        return StepUpEnabled | StepDownEnabled;
    }
    StepEnabled enabled = StepNone;
    if (const std::optional<QString> number = numberOf(plain(value))) {
        enabled.setFlag(StepUpEnabled, steppedNumber(*number, 1).has_value());
        enabled.setFlag(StepDownEnabled, steppedNumber(*number, -1).has_value());
    }
    return enabled;
}

QValidator::State BlankingNumberBox::validate(QString &input, int &) const
{
    if (input == heldText() || valueOf(input)) {
        return QValidator::Acceptable;
    }
    // A text that is no number stands until it is refused as a whole: without the keys that do not fit it
    // would become another number, 1,50 a hundred and fifty.
    return QValidator::Intermediate;
}

QSize BlankingNumberBox::sizeHint() const
{
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QSize inner(fontMetrics().horizontalAdvance(QString(12, u'0')), lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, inner, this);
}

void BlankingNumberBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        settle();
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void BlankingNumberBox::focusOutEvent(QFocusEvent *event)
{
    settle();
    QAbstractSpinBox::focusOutEvent(event);
}

void BlankingNumberBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus()) {
        QAbstractSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

QString BlankingNumberBox::shownText() const
{
    return lineEdit()->text();
}

void BlankingNumberBox::showText(const QString &text)
{
    if (text != lineEdit()->text()) {
        lineEdit()->setText(text);
    }
}

std::optional<QString> BlankingNumberBox::valueOf(const QString &text) const
{
    const QString given = plain(text);
    if (given.isEmpty()) {
        return QString();
    }
    std::optional<QString> number = numberOf(given);
    if (number) {
        number->replace(u'.', decimalPoint());
    }
    return number;
}

QString BlankingNumberBox::plain(const QString &text) const
{
    // Swedish and others have a minus sign of their own, perhaps with a mark of direction.
    return text.trimmed().replace(m_locale.negativeSign(), QStringLiteral("-"));
}
