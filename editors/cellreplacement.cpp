// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cellreplacement.h"

#include "core/numberreader.h"
#include "host/framework/hostui.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaProperty>
#include <QSignalBlocker>
#include <QStyleOptionViewItem>
#include <QTableWidget>

#include <memory>

namespace {

/// An open editor of a cell that nobody sees.
class CellEditor final
{
public:
    CellEditor(QTableWidget *table, const QModelIndex &index)
        : m_delegate(table->itemDelegateForIndex(index))
        , m_index(index)
    {
        QStyleOptionViewItem option;
        option.initFrom(table);
        m_editor = m_delegate->createEditor(table->viewport(), option, index);
    }
    CellEditor(const CellEditor &) = delete;
    CellEditor &operator=(const CellEditor &) = delete;
    /// At once: many thousand are opened before the event loop could come around to those that a delegate
    /// leaves to it.
    ~CellEditor() { delete m_editor; }

    [[nodiscard]] bool isOpen() const { return m_editor != nullptr; }
    [[nodiscard]] QWidget *widget() const { return m_editor; }
    void load() { m_delegate->setEditorData(m_editor, m_index); }
    void commit(QTableWidget *table) { m_delegate->setModelData(m_editor, table->model(), m_index); }

private:
    QAbstractItemDelegate *m_delegate;
    QModelIndex m_index;
    QWidget *m_editor = nullptr;
};

/// False where the editor does not take the text.
bool enterText(QWidget *editor, const QString &text)
{
    if (auto *spinBox = qobject_cast<QAbstractSpinBox *>(editor)) {
        spinBox->findChild<QLineEdit *>()->setText(text);
        const bool isAccepted = spinBox->hasAcceptableInput();
        spinBox->interpretText();
        return isAccepted;
    }
    if (auto *comboBox = qobject_cast<QComboBox *>(editor)) {
        comboBox->setCurrentIndex(comboBox->findText(text));
        if (comboBox->isEditable()) {
            comboBox->setEditText(text);
        }
        return comboBox->currentText() == text;
    }
    if (auto *lineEdit = qobject_cast<QLineEdit *>(editor)) {
        lineEdit->setText(text);
        return lineEdit->hasAcceptableInput();
    }
    return editor->metaObject()->userProperty().write(editor, text);
}

bool isSameNumber(const QString &one, const QString &other)
{
    const NumberReader reader(HostUi::current().locale());
    const auto number = reader.read(one);
    return number && number == reader.read(other);
}

/// What a cell has, all of it.
class CellBackup final
{
public:
    CellBackup(QTableWidget *table, int row, int column)
        : m_table(table)
        , m_row(row)
        , m_column(column)
        , m_item(table->item(row, column) ? std::make_unique<QTableWidgetItem>(*table->item(row, column))
                                          : nullptr)
    {
    }

    /// As the model's signals are blocked meanwhile, nobody notices that the cell was another one.
    void restore() const
    {
        QTableWidgetItem *item = m_table->item(m_row, m_column);
        if (item && m_item) {
            *item = *m_item;
        } else if (item) {
            delete m_table->takeItem(m_row, m_column);
        }
    }

private:
    QTableWidget *m_table;
    int m_row;
    int m_column;
    std::unique_ptr<QTableWidgetItem> m_item;
};

} // namespace

// What the editor makes of a text is known only once the delegate has taken it over. So this is first done
// with the model's signals blocked and taken back; only a text that is to stand is then set where everybody
// is told, and becomes an edit.
bool replaceCellText(QTableWidget *table, int row, int column, const QString &text)
{
    const QModelIndex index = table->model()->index(row, column);
    if (!(index.flags() & Qt::ItemIsEditable)) {
        return false;
    }
    CellEditor editor(table, index);
    if (!editor.isOpen()) {
        return false;
    }
    editor.load();
    if (!enterText(editor.widget(), text)) {
        return false;
    }
    {
        const QSignalBlocker blocker(table->model());
        const CellBackup backup(table, row, column);
        editor.commit(table);
        const QString entered = index.data().toString();
        backup.restore();
        if (entered != text && !isSameNumber(entered, text)) {
            return false;
        }
    }
    editor.commit(table);
    return true;
}
