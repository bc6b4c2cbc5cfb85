// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "looks/accessibletree.h"

#include <QAccessible>
#include <QComboBox>
#include <QSet>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

using namespace Qt::StringLiterals;

constexpr std::array controlRoles{
    QAccessible::PushButton,   QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::ComboBox,
    QAccessible::EditableText, QAccessible::SpinBox,  QAccessible::Slider,      QAccessible::PageTab,
    QAccessible::PageTabList,  QAccessible::MenuItem, QAccessible::ButtonMenu,  QAccessible::ButtonDropDown,
    QAccessible::Link,         QAccessible::Table,    QAccessible::Tree,        QAccessible::List};

class TreeWalk final
{
public:
    QStringList run(QWidget *window)
    {
        visit(*QAccessible::queryAccessibleInterface(window), false);
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            const bool isReached = (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
                                   widget->isVisible() && !widget->focusProxy();
            if (isReached && !m_known.contains(widget)) {
                add(nameOf(widget), u"is reached by the Tab key, but is in no tree"_s);
            }
        }
        return m_flaws;
    }

private:
    [[nodiscard]] static QString nameOf(const QObject *object)
    {
        if (!object) {
            return u"an element"_s;
        }
        return object->objectName().isEmpty() ? QString::fromLatin1(object->metaObject()->className())
                                              : object->objectName();
    }
    [[nodiscard]] static bool isControl(const QAccessibleInterface &element)
    {
        return std::find(controlRoles.begin(), controlRoles.end(), element.role()) != controlRoles.end();
    }
    void add(const QString &who, const QString &what) { m_flaws.append(u"%1 %2"_s.arg(who, what)); }

    void visit(QAccessibleInterface &element, bool isInside)
    {
        m_known.insert(element.object());
        // The list of a closed box and menus that are not open count when they open.
        if (element.state().invisible && isInside) {
            return;
        }
        if (isInside && element.role() == QAccessible::Window) {
            add(nameOf(element.object()), u"is a window inside a window"_s);
        }
        if (isControl(element)) {
            checkControl(element);
        }
        if (QAccessibleTableInterface *table = element.tableInterface()) {
            checkTable(element, *table);
        } else {
            visitChildren(element);
        }
    }

    void visitChildren(const QAccessibleInterface &element)
    {
        QSet<QPair<int, QString>> siblings;
        for (int i = 0; i < element.childCount(); ++i) {
            QAccessibleInterface *child = element.child(i);
            if (!child || !child->isValid()) {
                add(nameOf(element.object()), u"has a child that is none"_s);
                continue;
            }
            visit(*child, true);
            const QPair<int, QString> sound(child->role(), child->text(QAccessible::Name));
            if (isControl(*child) && !child->state().invisible && !sound.second.isEmpty()) {
                if (siblings.contains(sound)) {
                    add(nameOf(child->object()), u"sounds like its neighbour: "_s + sound.second);
                }
                siblings.insert(sound);
            }
        }
    }

    void checkControl(const QAccessibleInterface &element)
    {
        // Of a box the name is what is chosen.
        const bool isBox = element.role() == QAccessible::ComboBox;
        const bool isNamed = !element.text(QAccessible::Name).isEmpty() && !isBox;
        const bool isDescribed = isBox && !element.text(QAccessible::Description).isEmpty();
        if (!isNamed && !isDescribed && element.relations(QAccessible::Label).isEmpty() &&
            !isPartOfControl(element)) {
            add(nameOf(element.object()), u"has no name for screen readers"_s);
        }
    }

    /// Such as the field of a box.
    [[nodiscard]] static bool isPartOfControl(const QAccessibleInterface &element)
    {
        const QAccessibleInterface *parent = element.parent();
        return parent && (parent->role() == QAccessible::ComboBox || parent->role() == QAccessible::SpinBox ||
                          (parent->role() == QAccessible::PageTabList));
    }

    /// Qt makes the headings anew for each question, and only its register can delete them.
    [[nodiscard]] static bool hasHeading(const QAccessibleTableCellInterface &cell)
    {
        const QList<QAccessibleInterface *> headings = cell.columnHeaderCells();
        for (QAccessibleInterface *heading : headings) {
            QAccessible::deleteAccessibleInterface(QAccessible::registerAccessibleInterface(heading));
        }
        return !headings.isEmpty();
    }

    void checkTable(const QAccessibleInterface &element, QAccessibleTableInterface &table)
    {
        for (int column = 0; column < table.columnCount() && element.role() == QAccessible::Table; ++column) {
            QAccessibleInterface *cell = table.rowCount() > 0 ? table.cellAt(0, column) : nullptr;
            const QAccessibleTableCellInterface *part = cell ? cell->tableCellInterface() : nullptr;
            if (part && (!hasHeading(*part) || table.columnDescription(column).isEmpty())) {
                add(nameOf(element.object()), u"has a column without a heading: %1"_s.arg(column));
            }
        }
        for (QWidget *widget : qobject_cast<QWidget *>(element.object())->findChildren<QWidget *>()) {
            m_known.insert(widget);
        }
    }

    QSet<const QObject *> m_known;
    QStringList m_flaws;
};

} // namespace

QStringList accessibilityFlawsOf(QWidget *window)
{
    return TreeWalk().run(window);
}
