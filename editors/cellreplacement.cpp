// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cellreplacement.h"

#include "core/numberreader.h"
#include "host/framework/hostui.h"
#include "host/widgets/styleditemdelegate.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPersistentModelIndex>
#include <QSignalBlocker>
#include <QStyleOptionViewItem>
#include <QTableWidget>

#include <memory>

namespace {

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

/// Opens the editor of a cell, which nobody sees, enters the text and commits. False where the editor does
/// not take it.
bool enterIntoCell(QTableWidget *table, const QModelIndex &index, const QString &text)
{
    QAbstractItemDelegate *delegate = table->itemDelegateForIndex(index);
    if (const auto *styled = qobject_cast<StyledItemDelegate *>(delegate)) {
        return styled->enterText(table->model(), index, text);
    }
    QStyleOptionViewItem option;
    option.initFrom(table);
    // It goes at once: many thousand are opened before the event loop could come around to those that a
    // delegate leaves to it.
    const std::unique_ptr<QWidget> editor(delegate->createEditor(table->viewport(), option, index));
    if (!editor) {
        return false;
    }
    delegate->setEditorData(editor.get(), index);
    if (!enterText(editor.get(), text)) {
        return false;
    }
    delegate->setModelData(editor.get(), table->model(), index);
    return true;
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
// with the model's signals blocked and taken back; only a text that is to stand is then entered where
// everybody is told, and becomes an edit.
bool replaceCellText(QTableWidget *table, int row, int column, const QString &text)
{
    const QPersistentModelIndex index = table->model()->index(row, column);
    if (!index.flags().testFlag(Qt::ItemIsEditable)) {
        return false;
    }
    const auto isAsWanted = [&index, &text] {
        const QString entered = index.data().toString();
        return entered == text || isSameNumber(entered, text);
    };
    {
        const QSignalBlocker blocker(table->model());
        const CellBackup backup(table, row, column);
        const bool isTaken = enterIntoCell(table, index, text) && isAsWanted();
        backup.restore();
        if (!isTaken) {
            return false;
        }
    }
    const QVariant former = index.data(Qt::EditRole);
    const bool isOneText = former.toString() == index.data().toString();
    (void)enterIntoCell(table, index, text);
    // Who recorded the text may have made another one of it, or filled the table anew.
    if (!index.isValid() || isAsWanted()) {
        return true;
    }
    if (isOneText) {
        table->model()->setData(index, former);
    }
    return false;
}
