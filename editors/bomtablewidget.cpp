// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomtablewidget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

QColor dropColor()
{
    return {212, 219, 232};
}

bool canBeFilled(const QTableWidgetItem &item)
{
    return item.flags().testFlag(Qt::ItemIsEditable) && !item.data(BOMTableWidget::SeveralTextsRole).toBool();
}

} // namespace

BOMTableWidget::BOMTableWidget(QWidget *parent)
    : QTableWidget(parent)
{
    setMouseTracking(true);
    setAcceptDrops(true);
    setDragEnabled(true);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setDropIndicatorShown(false);
}

QSize BOMTableWidget::sizeHint() const
{
    constexpr int rows = 4;
    return {QTableWidget::sizeHint().width(),
            horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
                horizontalScrollBar()->sizeHint().height() + 2 * frameWidth()};
}

QModelIndexList BOMTableWidget::seenSelection() const
{
    QModelIndexList seen;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right() && !isRowHidden(row); ++column) {
                if (!isColumnHidden(column)) {
                    seen.append(model()->index(row, column));
                }
            }
        }
    }
    const QHeaderView &header = *horizontalHeader();
    std::sort(seen.begin(), seen.end(), [&header](const QModelIndex &left, const QModelIndex &right) {
        return left.row() != right.row()
                   ? left.row() < right.row()
                   : header.visualIndex(left.column()) < header.visualIndex(right.column());
    });
    return seen;
}

void BOMTableWidget::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex pressed = indexAt(event->position().toPoint());
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    setDragEnabled(isPlain && pressed.isValid() && pressed == currentIndex() &&
                   selectionModel()->isSelected(pressed));
    QTableWidget::mousePressEvent(event);
}

void BOMTableWidget::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    const bool isRight = event->button() == Qt::RightButton || event->buttons().testFlag(Qt::RightButton);
    const QPoint position = event->position().toPoint();
    QTableWidget::mouseReleaseEvent(event);
    const int row = rowAt(position.y());
    const int column = columnAt(position.x());
    if (row < 0 || column < 0) {
        return;
    }
    if (isLeft) {
        Q_EMIT cellLeftClicked(row, column);
    } else if (isRight) {
        Q_EMIT cellRightClicked(row, column);
    }
}

void BOMTableWidget::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && state() != EditingState &&
        edit(currentIndex(), AllEditTriggers, nullptr)) {
        event->accept();
        return;
    }
    QTableWidget::keyPressEvent(event);
}

void BOMTableWidget::contextMenuEvent(QContextMenuEvent *event)
{
    // With the mouse the menu opens when the button is released.
    if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid()) {
        Q_EMIT menuRequested(currentRow(), currentColumn());
    }
    event->accept();
}

void BOMTableWidget::startDrag(Qt::DropActions supportedActions)
{
    if (!currentItem() || currentItem()->data(SeveralTextsRole).toBool()) {
        return;
    }
    beginFill();
    m_fillsFrom = currentRow();
    m_isFillCancelled = false;
    // Installed within the drag, as the drag takes the key from who was there before.
    QTimer::singleShot(0, this, [this] {
        if (isDragging()) {
            qApp->installEventFilter(this);
        }
    });
    QTableWidget::startDrag(supportedActions);
    qApp->removeEventFilter(this);
    m_fillsFrom = -1;
    endHighlight();
    if (m_isFillCancelled) {
        Q_EMIT fillCancelled();
    }
    endFill();
}

bool BOMTableWidget::eventFilter(QObject *object, QEvent *event)
{
    if (isDragging() && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        m_isFillCancelled = true;
    }
    return QTableWidget::eventFilter(object, event);
}

QStringList BOMTableWidget::mimeTypes() const
{
    return {QStringLiteral("text/plain")};
}

QMimeData *BOMTableWidget::mimeData(const QList<QTableWidgetItem *> &items) const
{
    auto data = std::make_unique<QMimeData>();
    const QTableWidgetItem *dragged = items.contains(currentItem()) ? currentItem() : items.value(0);
    data->setText(dragged ? dragged->data(Qt::EditRole).toString() : QString());
    return data.release();
}

bool BOMTableWidget::dropMimeData(int, int, const QMimeData *, Qt::DropAction)
{
    // The cell took the text when the drag came over it.
    return true;
}

bool BOMTableWidget::takes(const QDropEvent &event) const
{
    const int column = columnAt(event.position().toPoint().x());
    return column >= 0 && column == currentColumn() && event.mimeData()->hasText();
}

void BOMTableWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_isDragInside) {
        m_isDragInside = true;
        beginFill();
    }
    if (takes(*event)) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore();
    }
}

void BOMTableWidget::dragMoveEvent(QDragMoveEvent *event)
{
    // Scrolls near the edges.
    QTableWidget::dragMoveEvent(event);
    if (!takes(*event)) {
        m_fillsFrom = -1;
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QTableWidgetItem *item = itemAt(event->position().toPoint());
    if (item && item != m_highlighted) {
        passOver(item, event->mimeData()->text());
    }
}

void BOMTableWidget::passOver(QTableWidgetItem *item, const QString &text)
{
    const int from = m_fillsFrom >= 0 ? m_fillsFrom : item->row();
    endHighlight();
    m_highlighted = item;
    m_fillsFrom = item->row();
    if (!canBeFilled(*item)) {
        return;
    }
    fillBetween(from, item->row(), text);
    item->setBackground(dropColor());
    item->setText(text);
}

/// A fast pointer leaves cells out on its way.
void BOMTableWidget::fillBetween(int from, int to, const QString &text)
{
    for (int row = std::min(from, to) + 1; row < std::max(from, to); ++row) {
        QTableWidgetItem *passed = isRowHidden(row) ? nullptr : item(row, currentColumn());
        if (passed && canBeFilled(*passed)) {
            passed->setText(text);
        }
    }
}

void BOMTableWidget::dragLeaveEvent(QDragLeaveEvent *event)
{
    endHighlight();
    m_fillsFrom = -1;
    QTableWidget::dragLeaveEvent(event);
    if (m_isDragInside) {
        m_isDragInside = false;
        endFill();
    }
}

void BOMTableWidget::dropEvent(QDropEvent *event)
{
    if (takes(*event)) {
        QTableWidgetItem *item = itemAt(event->position().toPoint());
        if (item && item != m_highlighted) {
            passOver(item, event->mimeData()->text());
        }
        QTableWidget::dropEvent(event);
    } else {
        event->ignore();
    }
    endHighlight();
    m_fillsFrom = -1;
    if (m_isDragInside) {
        m_isDragInside = false;
        endFill();
    }
}

void BOMTableWidget::endHighlight()
{
    if (m_highlighted) {
        m_highlighted->setBackground(QColor(0, 0, 0, 0));
        m_highlighted = nullptr;
    }
}

void BOMTableWidget::beginFill()
{
    if (++m_fills == 1) {
        Q_EMIT fillStarted();
    }
}

void BOMTableWidget::endFill()
{
    if (--m_fills == 0) {
        Q_EMIT fillEnded();
    }
}
