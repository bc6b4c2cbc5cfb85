// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

/// The base of the delegates of editable tables. Return commits and moves down, Shift+Return up, Tab to the
/// right, Shift+Tab to the left; the next cell does not open by itself. Escape gives up, losing focus
/// commits. A text that the editor's rule refuses keeps the editor open on Return and Tab and is dropped when
/// it loses focus. The editor fills its cell. A cell whose text was not changed is not written.
class StyledItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    ~StyledItemDelegate() override;

    /// Whether an editor of a cell is open. What would pull it away, such as filling the table again, waits.
    [[nodiscard]] bool isEditing() const;
    /// Commits and closes what is open; false when an editor's rule refuses its text, which then stays open.
    bool commitEditing();
    /// Closes what is open without a change.
    void cancelEditing();

    /// Enters a text into a cell through the cell's own editor, which is not shown, as if the user had opened
    /// it, typed the text and committed. False, and nothing changes, when the cell is not editable or the
    /// editor refuses. `model` is the model of the index.
    bool enterText(QAbstractItemModel *model, const QModelIndex &index, const QString &text) const;

    /// Makes the editor with makeEditor().
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const final;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

Q_SIGNALS:
    /// Comes from the event loop, when a closed editor has left the view for good: the table may be filled
    /// then.
    void editingChanged(bool isEditing);
    /// The text of the editor that is open for a cell is refused: it stays open, or the cell stays as it was
    /// when it is closed all the same, as by a click elsewhere.
    void refused(const QModelIndex &index) const;

protected:
    /// The editor for the cells of a column: any widget with a user property, best a ValueEditor, whose rule
    /// is kept; null for a column without. `parent` is null when the editor is not going to be shown; that
    /// one may serve other cells of the column, too.
    [[nodiscard]] virtual QWidget *makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct OpenEditor
    {
        QPointer<QWidget> widget;
        QPersistentModelIndex index;
        /// What the editor was filled with.
        QString text;
        bool isFilled = false;
    };

    /// The editor that enterText() uses; null for a cell without.
    [[nodiscard]] QWidget *hiddenEditor(const QModelIndex &index) const;
    [[nodiscard]] OpenEditor *find(const QWidget *editor) const;
    void watch(QWidget *editor, const QModelIndex &index);
    /// False when the editor's rule refuses its text.
    bool commitAndClose(QWidget *editor);
    void commitAndMove(QWidget *editor, int key);
    void forgetDeleted();
    void reportEditing();

    /// Qt's functions that make and drop editors are const.
    mutable QList<OpenEditor> m_open;
    bool m_wasEditing = false;
    mutable QPointer<QWidget> m_hidden;
    mutable const QAbstractItemModel *m_hiddenModel = nullptr;
    mutable int m_hiddenColumn = -1;
};
