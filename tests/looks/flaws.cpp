// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "looks/flaws.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

QString nameOf(const QWidget &widget)
{
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                         : widget.objectName();
}

/// Whether it is Qt that made a widget, to be a part of another.
bool isPartOfAnother(const QWidget &widget)
{
    const QObject *parent = widget.parent();
    return qobject_cast<const QTabBar *>(parent) || qobject_cast<const QComboBox *>(parent) ||
           qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QLineEdit *>(parent) ||
           (widget.objectName().startsWith(u"qt_"_s) && !qobject_cast<const QTabBar *>(&widget));
}

bool isCutOff(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                                 : label->width() < label->sizeHint().width();
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        return tabs->width() < tabs->sizeHint().width();
    }
    const bool hasText =
        qobject_cast<const QPushButton *>(&widget) || qobject_cast<const QCheckBox *>(&widget) ||
        qobject_cast<const QRadioButton *>(&widget) || qobject_cast<const QToolButton *>(&widget);
    return hasText && widget.width() < widget.minimumSizeHint().width();
}

/// Whether the keyboard reaches a widget whose purpose nothing says.
bool isNameless(QWidget &widget)
{
    // Tabs have their own names.
    if (!(widget.focusPolicy() & Qt::TabFocus) || qobject_cast<const QTabWidget *>(&widget)) {
        return false;
    }
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&widget);
    return interface && interface->text(QAccessible::Name).isEmpty();
}

bool hasNoTip(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button && !button->icon().isNull() && button->toolTip().isEmpty() &&
           (button->text().isEmpty() || qobject_cast<const QToolButton *>(&widget));
}

/// The texts that a widget shows and whose keys reach it.
QStringList textsOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return label->buddy() ? QStringList{label->text()} : QStringList();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        return {button->text()};
    }
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget)) {
        return {box->title()};
    }
    QStringList texts;
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            texts.append(tabs->tabText(tab));
        }
    }
    return texts;
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions) {
        texts.append(action->text());
    }
    return texts;
}

/// Entries that have always had their texts, and one key in common, which goes from one to the other.
bool isKnownPair(const QString &one, const QString &other)
{
    return QSet{one, other} == QSet{u"&Print"_s, u"&PDF"_s};
}

void findSharedKeys(const QStringList &texts, const QString &place, QStringList &flaws)
{
    QHash<QKeySequence, QString> owners;
    for (const QString &text : texts) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty() && owners.contains(key) && !isKnownPair(owners[key], text)) {
            flaws.append(u"%1: \"%2\" and \"%3\" have the same key %4"_s.arg(place, owners[key], text,
                                                                             key.toString()));
        }
        owners.insert(key, text);
    }
}

} // namespace

QStringList flawsOf(const QWidget &window)
{
    QStringList flaws;
    QStringList texts;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (const auto *menu = qobject_cast<const QMenu *>(widget)) {
            findSharedKeys(textsOf(menu->actions()), u"menu \"%1\""_s.arg(menu->title()), flaws);
        }
        if (!widget->isVisible() || isPartOfAnother(*widget)) {
            continue;
        }
        if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            texts += textsOf(bar->actions());
        }
        texts += textsOf(*widget);
        if (isCutOff(*widget)) {
            flaws.append(u"%1: the text is cut off"_s.arg(nameOf(*widget)));
        }
        if (isNameless(*widget)) {
            flaws.append(u"%1: nothing names it for a screen reader"_s.arg(nameOf(*widget)));
        }
        if (hasNoTip(*widget)) {
            flaws.append(u"%1: a picture without a tool tip"_s.arg(nameOf(*widget)));
        }
    }
    findSharedKeys(texts, nameOf(window), flaws);
    // What a screen of 1366 by 768 has beside frames and bars.
    if (const QSize least = window.minimumSizeHint(); least.width() > 1360 || least.height() > 710) {
        flaws.append(u"%1: does not fit a small screen, it needs %2 by %3"_s.arg(nameOf(window))
                         .arg(least.width())
                         .arg(least.height()));
    }
    return flaws;
}
