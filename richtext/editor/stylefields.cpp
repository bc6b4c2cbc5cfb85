// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/stylefields.h"

#include "richtext/css/cssvalue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>

namespace stylefields {
namespace {

class WheelGuard : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Wheel && !qobject_cast<QWidget *>(watched)->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void setEntries(QComboBox *combo, const QStringList &values)
{
    Q_ASSERT(combo->count() == values.size());
    for (int i = 0; i < combo->count(); ++i) {
        combo->setItemData(i, values.at(i));
    }
}

void showEntry(QComboBox *combo, const QString &value)
{
    combo->setPlaceholderText(value);
    combo->setCurrentIndex(combo->findData(value.toLower()));
}

void showTrait(QCheckBox *box, const QString &value, bool on)
{
    box->setCheckState(value.isEmpty() ? Qt::PartiallyChecked : on ? Qt::Checked : Qt::Unchecked);
}

bool isBold(const QString &weight)
{
    return weight.startsWith(QLatin1String("bold"), Qt::CaseInsensitive) || weight.toInt() >= 600;
}

QString decoration(const QString &now, bool underline)
{
    QStringList lines = css::parts(now.toLower());
    lines.removeAll(QStringLiteral("none"));
    lines.removeAll(QStringLiteral("underline"));
    if (underline) {
        lines.prepend(QStringLiteral("underline"));
    }
    return lines.isEmpty() ? QStringLiteral("none") : lines.join(u' ');
}

void guardFromWheel(QWidget *field)
{
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(new WheelGuard(field));
}

} // namespace stylefields
