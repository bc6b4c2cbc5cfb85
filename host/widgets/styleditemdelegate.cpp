// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/styleditemdelegate.h"

#include "host/widgets/keywordvalueeditor.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>

namespace {

QAbstractItemView *viewOf(const QWidget *editor)
{
    QWidget *widget = editor->parentWidget();
    while (widget && !qobject_cast<QAbstractItemView *>(widget)) {
        widget = widget->parentWidget();
    }
    return qobject_cast<QAbstractItemView *>(widget);
}

QString textOf(const QWidget *editor)
{
    return editor->property(editor->metaObject()->userProperty().name()).toString();
}

/// The key of the direction into which a key that ends editing moves; 0 for any other key.
int directionOf(const QKeyEvent &event)
{
    const bool isBack = event.modifiers() & Qt::ShiftModifier;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return isBack ? Qt::Key_Up : Qt::Key_Down;
    case Qt::Key_Tab:
        return isBack ? Qt::Key_Left : Qt::Key_Right;
    case Qt::Key_Backtab:
        return Qt::Key_Left;
    default:
        return 0;
    }
}

/// The next section that is visible, in the order in which they are shown; -1 at the end.
int nextSection(const QHeaderView &header, int section, int step)
{
    for (int at = header.visualIndex(section) + step; at >= 0 && at < header.count(); at += step) {
        const int next = header.logicalIndex(at);
        if (!header.isSectionHidden(next)) {
            return next;
        }
    }
    return -1;
}

/// The cell beside one; the cell itself at the edge of the table.
QModelIndex neighbour(const QTableView &table, const QModelIndex &index, int key)
{
    const bool isInRow = key == Qt::Key_Left || key == Qt::Key_Right;
    const int step = key == Qt::Key_Down || key == Qt::Key_Right ? 1 : -1;
    const int next = isInRow ? nextSection(*table.horizontalHeader(), index.column(), step)
                             : nextSection(*table.verticalHeader(), index.row(), step);
    if (next < 0) {
        return index;
    }
    return isInRow ? index.siblingAtColumn(next) : index.siblingAtRow(next);
}

/// In these, Return and Tab are text.
bool holdsLines(const QWidget *editor)
{
    return qobject_cast<const QTextEdit *>(editor) || qobject_cast<const QPlainTextEdit *>(editor);
}

void removeFrame(QWidget *editor)
{
    if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        line->setFrame(false);
    } else if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        combo->setFrame(false);
    } else if (auto *box = qobject_cast<QAbstractSpinBox *>(editor)) {
        box->setFrame(false);
    }
    // What the cell shows must not shine through.
    editor->setAutoFillBackground(true);
}

bool isRefused(const QWidget *editor)
{
    if (const auto *value = dynamic_cast<const ValueEditor *>(editor)) {
        return !value->isAcceptable();
    }
    const auto *line = qobject_cast<const QLineEdit *>(editor);
    return line && !line->hasAcceptableInput();
}

/// Puts a text into an editor that is not shown; false when its rule refuses.
bool enter(QWidget *editor, const QString &text)
{
    if (auto *value = dynamic_cast<ValueEditor *>(editor)) {
        return value->enterText(text);
    }
    const char *name = editor->metaObject()->userProperty().name();
    return name && editor->setProperty(name, text) && !isRefused(editor);
}

} // namespace

StyledItemDelegate::~StyledItemDelegate()
{
    delete m_hidden;
}

bool StyledItemDelegate::isEditing() const
{
    return std::ranges::any_of(m_open, [](const OpenEditor &open) { return !open.widget.isNull(); });
}

bool StyledItemDelegate::commitEditing()
{
    const QList<OpenEditor> open = m_open;
    return std::ranges::all_of(
        open, [this](const OpenEditor &editor) { return !editor.widget || commitAndClose(editor.widget); });
}

void StyledItemDelegate::cancelEditing()
{
    const QList<OpenEditor> open = m_open;
    for (const OpenEditor &editor : open) {
        if (editor.widget) {
            Q_EMIT closeEditor(editor.widget, RevertModelCache);
        }
    }
}

bool StyledItemDelegate::enterText(QAbstractItemModel *model, const QModelIndex &index,
                                   const QString &text) const
{
    if (!index.isValid() || !index.flags().testFlag(Qt::ItemIsEditable)) {
        return false;
    }
    QWidget *editor = hiddenEditor(index);
    if (!editor) {
        return false;
    }
    setEditorData(editor, index);
    if (!enter(editor, text)) {
        return false;
    }
    setModelData(editor, model, index);
    return true;
}

QWidget *StyledItemDelegate::hiddenEditor(const QModelIndex &index) const
{
    // Replacing in thousands of cells makes one editor for a column. It goes when the event loop is back:
    // later the column may stand for something else.
    if (!m_hidden || m_hiddenColumn != index.column() || m_hiddenModel != index.model()) {
        delete m_hidden;
        m_hidden = makeEditor(nullptr, QStyleOptionViewItem(), index);
        m_hiddenColumn = index.column();
        m_hiddenModel = index.model();
        if (m_hidden) {
            m_hidden->deleteLater();
        }
    }
    return m_hidden;
}

QWidget *StyledItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    QWidget *editor = makeEditor(parent, option, index);
    if (editor) {
        const_cast<StyledItemDelegate *>(this)->watch(editor, index);
    }
    return editor;
}

QWidget *StyledItemDelegate::makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    return QStyledItemDelegate::createEditor(parent, option, index);
}

void StyledItemDelegate::watch(QWidget *editor, const QModelIndex &index)
{
    removeFrame(editor);
    forgetDeleted();
    m_open.append({editor, index, {}, false});
    connect(editor, &QObject::destroyed, this, &StyledItemDelegate::reportEditing, Qt::QueuedConnection);
    if (auto *keywords = qobject_cast<KeywordValueEditor *>(editor)) {
        connect(
            keywords, &KeywordValueEditor::chosen, this, [this, keywords] { commitAndClose(keywords); },
            Qt::QueuedConnection);
    }
    QMetaObject::invokeMethod(this, &StyledItemDelegate::reportEditing, Qt::QueuedConnection);
}

void StyledItemDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    m_open.removeIf([editor](const OpenEditor &open) { return open.widget == editor; });
    QMetaObject::invokeMethod(const_cast<StyledItemDelegate *>(this), &StyledItemDelegate::reportEditing,
                              Qt::QueuedConnection);
    QStyledItemDelegate::destroyEditor(editor, index);
}

void StyledItemDelegate::forgetDeleted()
{
    m_open.removeIf([](const OpenEditor &open) { return !open.widget; });
}

void StyledItemDelegate::reportEditing()
{
    forgetDeleted();
    if (m_wasEditing != isEditing()) {
        m_wasEditing = isEditing();
        Q_EMIT editingChanged(m_wasEditing);
    }
}

StyledItemDelegate::OpenEditor *StyledItemDelegate::find(const QWidget *editor) const
{
    const auto found =
        std::ranges::find_if(m_open, [editor](const OpenEditor &open) { return open.widget == editor; });
    return found == m_open.end() ? nullptr : &*found;
}

void StyledItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    OpenEditor *open = find(editor);
    // The view calls this whenever anything of the cell changes, its colour too: what was typed would be
    // lost.
    if (open && open->isFilled) {
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
    if (open) {
        open->text = textOf(editor);
        open->isFilled = true;
    }
}

void StyledItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                      const QModelIndex &index) const
{
    const OpenEditor *open = find(editor);
    if (open && isRefused(editor)) {
        Q_EMIT refused(index);
    } else if (!open || open->text != textOf(editor)) {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

void StyledItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                              const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

bool StyledItemDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QWidget *>(object);
    if (editor && event->type() == QEvent::KeyPress && find(editor) && !holdsLines(editor)) {
        if (const int direction = directionOf(*static_cast<QKeyEvent *>(event))) {
            commitAndMove(editor, direction);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

bool StyledItemDelegate::commitAndClose(QWidget *editor)
{
    if (isRefused(editor)) {
        QApplication::beep();
        if (const OpenEditor *open = find(editor)) {
            Q_EMIT refused(open->index);
        }
        return false;
    }
    // Whoever hears of the change may close the editor.
    const QPointer<QWidget> still = editor;
    Q_EMIT commitData(editor);
    if (still && find(editor)) {
        Q_EMIT closeEditor(editor, SubmitModelCache);
    }
    return true;
}

void StyledItemDelegate::commitAndMove(QWidget *editor, int key)
{
    const QPointer<QAbstractItemView> view = viewOf(editor);
    auto *table = qobject_cast<QTableView *>(view.data());
    // Found before the commit: in a sorted table the row may move away because of it.
    const OpenEditor *open = find(editor);
    const QPersistentModelIndex next =
        table && open->index.isValid() ? neighbour(*table, open->index, key) : QModelIndex();
    if (commitAndClose(editor) && view && next.isValid()) {
        view->setCurrentIndex(next);
    }
}
