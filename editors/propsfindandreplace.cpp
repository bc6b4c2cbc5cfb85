// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/propsfindandreplace.h"

#include "editors/cellreplacement.h"
#include "host/widgets/styleditemdelegate.h"
#include "ui_propsfindandreplace.h"

#include <QApplication>
#include <QHeaderView>
#include <QHideEvent>
#include <QScopeGuard>
#include <QShortcut>
#include <QShowEvent>
#include <QTableWidget>

#include <algorithm>

namespace {

/// Those of the references and the category.
constexpr int columnsOfNames = 2;

bool hidesSections(const QHeaderView &header)
{
    return header.hiddenSectionCount() > 0;
}

} // namespace

PropsFindAndReplace::PropsFindAndReplace(QTableWidget *table, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::PropsFindAndReplace>())
    , m_table(table)
    , m_search(table)
{
    m_ui->setupUi(this);
    setModal(false);
    // It would complete a shorter text to a longer one of the history, which is then another search.
    m_ui->findComboBox->setCompleter(nullptr);
    m_ui->hiddenNote->hide();
    connectWidgets();
}

PropsFindAndReplace::~PropsFindAndReplace()
{
    // Otherwise the base hides the dialog, which then is no PropsFindAndReplace any more.
    hide();
}

void PropsFindAndReplace::connectWidgets()
{
    connect(m_ui->findBtn, &QPushButton::clicked, this, &PropsFindAndReplace::findNext);
    connect(m_ui->replaceBtn, &QPushButton::clicked, this, &PropsFindAndReplace::replace);
    connect(m_ui->replaceAllBtn, &QPushButton::clicked, this, &PropsFindAndReplace::replaceAll);
    const auto *next = new QShortcut(QKeySequence::FindNext, this);
    connect(next, &QShortcut::activated, this, &PropsFindAndReplace::findNext);
}

void PropsFindAndReplace::showFind()
{
    bringUp(m_ui->findComboBox);
}

void PropsFindAndReplace::showReplace()
{
    bringUp(m_ui->replaceEdit);
}

void PropsFindAndReplace::bringUp(QWidget *field)
{
    if (isVisible()) {
        prepare();
    }
    show();
    raise();
    activateWindow();
    field->setFocus(Qt::ShortcutFocusReason);
    m_ui->findComboBox->lineEdit()->selectAll();
    m_ui->replaceEdit->selectAll();
}

void PropsFindAndReplace::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        prepare();
    }
    APPLNDIALOG::showEvent(event);
}

void PropsFindAndReplace::hideEvent(QHideEvent *event)
{
    APPLNDIALOG::hideEvent(event);
    if (m_table && !event->spontaneous()) {
        m_table->setSortingEnabled(true);
        // Whoever found a cell goes on there.
        m_table->setFocus();
    }
}

void PropsFindAndReplace::prepare()
{
    if (!m_table) {
        return;
    }
    begin();
    if (const QTableWidgetItem *item = m_table->currentItem()) {
        m_ui->findComboBox->setEditText(item->text());
    }
    remember(m_ui->findComboBox->currentText());
    startSearch();
}

void PropsFindAndReplace::begin()
{
    if (auto *delegate = qobject_cast<StyledItemDelegate *>(m_table->itemDelegate())) {
        // A shortcut does not take the keyboard from an open editor before.
        delegate->commitEditing();
    }
    m_ui->searchStatus->clear();
    m_isIncompatible = false;
    // Filling the table switches it on.
    m_table->setSortingEnabled(false);
    updateHiddenNote();
}

void PropsFindAndReplace::updateHiddenNote()
{
    m_ui->hiddenNote->setVisible(hidesSections(*m_table->verticalHeader()) ||
                                 hidesSections(*m_table->horizontalHeader()));
}

CellCriteria PropsFindAndReplace::criteria() const
{
    return {m_ui->findComboBox->currentText(), m_ui->caseSensitiveCheck->isChecked(),
            m_ui->currentColOnlyCheck->isChecked()};
}

TableCell PropsFindAndReplace::currentCell() const
{
    return {m_table->currentRow(), m_table->currentColumn()};
}

void PropsFindAndReplace::makeCurrent(const TableCell &cell)
{
    m_table->setCurrentCell(cell.row, cell.column);
}

void PropsFindAndReplace::startSearch()
{
    m_search.start(currentCell());
    m_criteria = criteria();
}

void PropsFindAndReplace::remember(const QString &text)
{
    QComboBox &box = *m_ui->findComboBox;
    if (text.isEmpty()) {
        // It is looked for as well, but is of no use in the list.
        return;
    }
    int index = box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        index = 0;
        box.insertItem(index, text);
    }
    box.setCurrentIndex(index);
}

void PropsFindAndReplace::findNext()
{
    if (m_table) {
        begin();
        goToNextCell();
    }
}

void PropsFindAndReplace::goToNextCell()
{
    remember(m_ui->findComboBox->currentText());
    const bool isElsewhere = currentCell() != m_search.place() && m_table->currentRow() >= 0;
    if (isElsewhere || m_search.isOutdated() || m_criteria != criteria()) {
        startSearch();
    }
    if (const auto cell = nextCell()) {
        makeCurrent(*cell);
    }
}

std::optional<TableCell> PropsFindAndReplace::nextCell()
{
    const auto cell = m_search.next(m_criteria);
    if (!cell) {
        startSearch();
        m_ui->searchStatus->setText(tr("Reached end of search."));
    }
    return cell;
}

void PropsFindAndReplace::replace()
{
    if (m_table) {
        begin();
        runAsAction([this] { replaceCell(currentCell()); });
        goToNextCell();
        report();
    }
}

void PropsFindAndReplace::replaceAll()
{
    if (!m_table) {
        return;
    }
    begin();
    remember(m_ui->findComboBox->currentText());
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restored = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    runAsAction([this] { replaceAllCells(); });
    report();
}

// The table's current cell moves once, to the last cell with the text: its moving costs more than finding.
void PropsFindAndReplace::replaceAllCells()
{
    m_table->setUpdatesEnabled(false);
    startSearch();
    replaceCell(currentCell());
    TableCell last;
    while (const auto cell = nextCell()) {
        last = *cell;
        replaceCell(last);
        if (m_search.isOutdated()) {
            break;
        }
    }
    m_table->setUpdatesEnabled(true);
    if (last.row >= 0) {
        makeCurrent(last);
        startSearch();
    }
}

void PropsFindAndReplace::replaceCell(const TableCell &cell)
{
    if (cell.row < 0 || cell.column < 0 || !m_search.matches(cell, criteria())) {
        return;
    }
    if (cell.column < columnsOfNames ||
        !replaceCellText(m_table, cell.row, cell.column, m_ui->replaceEdit->text())) {
        m_isIncompatible = true;
    }
}

void PropsFindAndReplace::runAsAction(const std::function<void()> &replacement)
{
    if (m_runner) {
        m_runner(replacement);
    } else {
        replacement();
    }
}

void PropsFindAndReplace::report()
{
    if (m_isIncompatible) {
        m_ui->searchStatus->setText(
            tr("Some values were not replaced as the replacement string was not compatible."));
    }
}
