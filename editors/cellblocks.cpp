// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cellblocks.h"

#include "editors/bomtablewidget.h"
#include "editors/partstable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>

#include <algorithm>

namespace {

/// The numbers of rows or columns that are seen, in the order in which they stand, from one of them on.
QList<int> seenFrom(const QHeaderView &header, int first)
{
    QList<int> seen;
    for (int place = header.visualIndex(first); place >= 0 && place < header.count(); ++place) {
        const int section = header.logicalIndex(place);
        if (!header.isSectionHidden(section)) {
            seen.append(section);
        }
    }
    return seen;
}

/// Does not replace "%1" in what it has put in already.
QString filledIn(const QString &text, const QString &first, const QString &second)
{
    const qsizetype at = text.indexOf(QStringLiteral("%2"));
    return at < 0 ? QString(text).replace(QStringLiteral("%1"), first)
                  : text.left(at).replace(QStringLiteral("%1"), first) + second +
                        text.mid(at + 2).replace(QStringLiteral("%1"), first);
}

} // namespace

CellBlocks::CellBlocks(BOMTableWidget *view, PartsTable *table, Check check)
    : m_view(view)
    , m_table(table)
    , m_check(std::move(check))
    , m_copy(addCommand(tr("&Copy"), QKeySequence::Copy, &CellBlocks::copy))
    , m_cut(addCommand(tr("Cu&t"), QKeySequence::Cut, &CellBlocks::cut))
    , m_paste(addCommand(tr("&Paste"), QKeySequence::Paste, &CellBlocks::paste))
    , m_clear(addCommand(tr("C&lear"), QKeySequence::Delete, &CellBlocks::clear))
{
}

QAction *CellBlocks::addCommand(const QString &text, const QKeySequence &key, void (CellBlocks::*slot)())
{
    auto *action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_view->addAction(action);
    return action;
}

ClipboardBlock CellBlocks::selectedBlock() const
{
    const QModelIndexList cells = m_view->seenSelection();
    if (cells.isEmpty()) {
        return {};
    }
    const QHeaderView &header = *m_view->horizontalHeader();
    const auto place = [&header](const QModelIndex &cell) { return header.visualIndex(cell.column()); };
    const auto [left, right] =
        std::minmax_element(cells.cbegin(), cells.cend(), [&place](const auto &one, const auto &other) {
            return place(one) < place(other);
        });
    QList<int> columns = seenFrom(header, left->column());
    columns.resize(columns.indexOf(right->column()) + 1);
    ClipboardBlock block;
    int row = -1;
    for (const QModelIndex &cell : cells) {
        if (cell.row() != row) {
            row = cell.row();
            block.append(QStringList(columns.size()));
        }
        // A cell whose parts differ has no text of its own.
        const bool hasText = !cell.data(BOMTableWidget::SeveralTextsRole).toBool();
        block.last()[columns.indexOf(cell.column())] = hasText ? cell.data().toString() : QString();
    }
    return block;
}

void CellBlocks::copy()
{
    const ClipboardBlock block = selectedBlock();
    if (block.size() == 1 && block.first().size() == 1) {
        // A single text goes into other fields without the line end of a row.
        QGuiApplication::clipboard()->setText(block.first().first());
    } else if (!block.isEmpty()) {
        QGuiApplication::clipboard()->setText(clipboardText(block));
    }
}

void CellBlocks::cut()
{
    const Plan plan = clearPlan();
    if (plan.problem.isEmpty()) {
        copy();
    }
    carryOut(plan);
}

void CellBlocks::clear()
{
    carryOut(clearPlan());
}

CellBlocks::Plan CellBlocks::clearPlan() const
{
    Plan plan;
    const QModelIndexList cells = m_view->seenSelection();
    for (const QModelIndex &cell : cells) {
        const PropertyItem *item = m_table->fieldAt(cell.row(), cell.column());
        const bool isMeant = item && (!item->cell().isDifferent || cells.size() == 1);
        if (isMeant && item->column().isEditable) {
            add(&plan, cell.row(), cell.column(), {});
        }
    }
    const auto isEmpty = [this](const QModelIndex &cell) {
        const PropertyItem *item = m_table->fieldAt(cell.row(), cell.column());
        return item && item->cell().text.isEmpty() && !item->cell().isDifferent;
    };
    const bool isNothingToClear = std::all_of(cells.begin(), cells.end(), isEmpty);
    if (plan.texts.isEmpty() && plan.problem.isEmpty() && !isNothingToClear) {
        plan.problem = tr("Nothing was cleared: these cells cannot be edited, or their parts differ.");
    }
    return plan;
}

void CellBlocks::paste()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const ClipboardBlock block = readClipboardText(data ? data->text() : QString());
    if (block.isEmpty() || !m_view->currentIndex().isValid()) {
        return;
    }
    const bool isOneText = block.size() == 1 && block.first().size() == 1;
    carryOut(isOneText ? fillPlan(block.first().first()) : pastePlan(block));
}

CellBlocks::Plan CellBlocks::fillPlan(const QString &text) const
{
    Plan plan;
    QModelIndexList cells = m_view->seenSelection();
    if (cells.isEmpty()) {
        cells = {m_view->currentIndex()};
    }
    for (const QModelIndex &cell : cells) {
        add(&plan, cell.row(), cell.column(), text);
    }
    return plan;
}

CellBlocks::Plan CellBlocks::pastePlan(const ClipboardBlock &block) const
{
    const QModelIndexList selected = m_view->seenSelection();
    QModelIndex corner = m_view->currentIndex();
    const QHeaderView &header = *m_view->horizontalHeader();
    for (const QModelIndex &cell : selected) {
        const int column = header.visualIndex(cell.column()) < header.visualIndex(corner.column())
                               ? cell.column()
                               : corner.column();
        corner = m_view->model()->index(std::min(cell.row(), corner.row()), column);
    }
    const QList<int> rows = seenFrom(*m_view->verticalHeader(), corner.row());
    const QList<int> columns = seenFrom(header, corner.column());
    const qsizetype width = block.first().size();
    if (block.size() > rows.size() || width > columns.size()) {
        return {
            {},
            filledIn(tr("Nothing was pasted: the block of %1 rows and %2 columns reaches beyond the table."),
                     QString::number(block.size()), QString::number(width))};
    }
    Plan plan;
    for (qsizetype row = 0; row < block.size() && plan.problem.isEmpty(); ++row) {
        for (qsizetype column = 0; column < width; ++column) {
            add(&plan, rows.at(row), columns.at(column), block.at(row).at(column));
        }
    }
    return plan;
}

void CellBlocks::add(Plan *plan, int row, int column, const QString &text) const
{
    const QString shown = m_view->model()->index(row, column).data().toString();
    PropertyItem *item = m_table->fieldAt(row, column);
    // What a copied block holds beside the fields may come back with it. "(different)" is nobody's text.
    if (!plan->problem.isEmpty() || text == shown) {
        return;
    }
    const bool isOneOfMany = item && item->cell().isDifferent && m_view->seenSelection().size() > 1;
    const QString reason = !item         ? tr("it cannot be edited")
                           : isOneOfMany ? tr("its parts differ, and it is not the only cell selected")
                                         : m_check(*item, text);
    if (!reason.isEmpty()) {
        const QString place = m_view->item(row, PartsTable::ReferenceColumn)->text() + QStringLiteral(", ") +
                              m_view->horizontalHeaderItem(column)->text();
        plan->problem = filledIn(tr("Nothing was changed. %1: %2."), place, reason);
        return;
    }
    plan->texts.append({item, text});
}

void CellBlocks::carryOut(const Plan &plan)
{
    if (!plan.problem.isEmpty()) {
        Q_EMIT statusMessage(plan.problem);
        return;
    }
    Q_EMIT started();
    for (const CellText &cell : plan.texts) {
        cell.item->setText(cell.text);
    }
    Q_EMIT ended();
}
